// What the plot screens have in common: the page as a window, the question after
// each page, and the message of a run that fails.
#pragma once

#include <functional>
#include <string>

#include "platform/page.h"
#include "platform/qt/form.h"
#include "store/program.h"

class PlotScreen : public Form {
    Q_OBJECT
  public:
    PlotScreen(Program& program, const std::string& name, const std::string& caption);

    /// The page that stands on the screen; without drawing between and after the plots.
    const Page& page() const { return page_; }

    /// Upper left corner, in twips.
    struct Corner {
        int left, top;
    };
    /// Where the page stands on a screen of this size in twips: above the middle, or, where the screen is too
    /// small for it, with the page's margin pushed off the screen.
    static Corner cornerOn(int screenWidth, int screenHeight);

  protected:
    /// Sets the page up, opens a plot and shows its pages. "File not found" and "Data error" are told in
    /// message boxes; the pages answered before have gone.
    void runPlot(const std::function<void()>& open, const std::function<void()>& showPages);
    /// The name of the plot file with this extension that belongs to the shared file name.
    std::string plotFile(const std::string& extension) const;
    /// Puts the page on the screen and shows the form.
    void display(const Page& page);
    /// Displays the page, asks whether to print it, and clears the screen.
    void present(const Page& page);
    /// Clears the screen, which stays, and tells `message`.
    void fail(const std::string& message);
    void paintEvent(QPaintEvent* event) override;

    Program& program_;

  private:
    /// The page's own size and place, and the line break that all built texts use.
    void setUpPage();
    void print(const Page& page);
    void setPage(const Page& page);

    Page page_;
};
