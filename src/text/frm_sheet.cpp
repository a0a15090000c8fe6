#include "text/frm_sheet.h"

#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/print_text_box.h"
#include "platform/printer.h"
#include "platform/qt/menu_bar.h"
#include "platform/qt/page_renderer.h"
#include "store/store.h"
#include "text/pages.h"
#include "text/sheets.h"

namespace {

constexpr int twipsPerPixel = 10;

}  // namespace

PagePicture::PagePicture(const std::string& name, Page page, QWidget* parent)
    : QWidget(parent), page_(std::move(page)) {
    setObjectName(QString::fromStdString(name));
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int PagePicture::heightForWidth(int width) const {
    return static_cast<int>(static_cast<float>(width) * page_.height / page_.width);
}

QSize PagePicture::sizeHint() const {
    return QSizeF(page_.width / twipsPerPixel, page_.height / twipsPerPixel).toSize();
}

QSize PagePicture::minimumSizeHint() const { return sizeHint() / 2; }

void PagePicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const double pixels = std::min(width() / double(page_.width), height() / double(page_.height));
    painter.translate((width() - page_.width * pixels) / 2, 0);
    paintPage(painter, page_, pixels);
}

frmSheet::frmSheet(Program& program, const Sheet& sheet)
    : Form(sheet.form),
      program_(program),
      sheet_(sheet),
      Image1(new PagePicture("Image1", sheet.picture(), this)),
      txtHelp(new HelpBox("txtHelp", this)) {
    Image1->setAccessibleName("Figure");
    txtHelp->setAccessibleName("Text of the sheet");
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->setSpacing(0);
    page->addWidget(Image1, 3);
    page->addWidget(txtHelp, 2);
    page->setMenuBar(makeMenuBar({{"mnuPrintForm", "Print &Form", [this] { mnuPrintForm_Click(); }},
                                  {sheet.mnuPrintText, "Print &Text", [this] { mnuPrintText_Click(); }},
                                  {"mnuExit", "&Exit", [this] { program_.screens.unload(name()); }}},
                                 this));
}

void frmSheet::Form_Load() {
    setCaption(sheet_.caption);
    txtHelp->setTextValue(textPage(sheet_.page, program_.store.NL));
    place();
    Show();
}

/// The sheet down to where its text begins, whatever size the window has.
void frmSheet::mnuPrintForm_Click() {
    Page page = Image1->page();
    page.height = static_cast<float>(sheet_.printHeight);
    program_.printer.PrintForm(page);
}

void frmSheet::mnuPrintText_Click() {
    program_.printer.FontSize = 10;
    PrintTextBox(program_.printer, txtHelp->textValue());
}

void addSheets(Program& program) {
    for (const Sheet& sheet : sheets()) {
        program.screens.add(sheet.form,
                            [&program, &sheet] { return std::make_unique<frmSheet>(program, sheet); });
    }
}

void showSheet(Program& program, const std::string& form) {
    if (Form* sheet = program.screens.load(form)) sheet->Show();
}
