// A sheet of the manual on the screen: its figure above its text.
#pragma once

#include "platform/page.h"
#include "platform/qt/form.h"
#include "store/program.h"

struct Sheet;

/// A page as a picture, as large as the window has room for.
class PagePicture : public QWidget {
    Q_OBJECT
  public:
    PagePicture(const std::string& name, Page page, QWidget* parent);
    const Page& page() const { return page_; }

    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    Page page_;
};

class frmSheet : public Form {
    Q_OBJECT
  public:
    frmSheet(Program& program, const Sheet& sheet);

    void Form_Load() override;

  private:
    void mnuPrintForm_Click();
    void mnuPrintText_Click();

    Program& program_;
    const Sheet& sheet_;
    PagePicture* Image1;
    HelpBox* txtHelp;
};

/// Adds a screen for every sheet.
void addSheets(Program& program);
/// Opens a sheet, or brings it to the front.
void showSheet(Program& program, const std::string& form);
