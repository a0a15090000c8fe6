#include "plots/contour_plot.h"

#include <cmath>

#include "plots/contour_tracer.h"

namespace {

// Palette colours.
constexpr int black = 0, lightBlue = 9, lightRed = 12, lightMagenta = 13;

/// What differs between the two directions of a problem's pages.
struct Direction {
    const char *caption, *stressLow, *stressHigh, *momentLow, *momentHigh;
    Integer PanResults::Layer::*lowNode;
    Single PanResults::Layer::*low;
    Integer PanResults::Layer::*highNode;
    Single PanResults::Layer::*high;
    Bounded<PanProblem::PerLayer<Single>, 625> PanProblem::*table;
};
constexpr Direction directions[] = {
    {", STRESSES IN X DIRECTION", "Max. '-' Stress in X Dir.=", "Max. '+' Stress in X Dir.=",
     "Max. '-' Moment in X Dir.=", "Max. '+' M. in X Dir.=", &PanResults::Layer::NMIX,
     &PanResults::Layer::SMIX, &PanResults::Layer::NPLX, &PanResults::Layer::SPLX, &PanProblem::SX},
    {", STRESSES IN Y DIRECTION", "Max. '-' Stress in Y Dir.=", "Max. '+' Stress in Y Dir.=",
     "Max. '-' Moment in Y Dir.=", "Max. '+' M. in Y Dir.=", &PanResults::Layer::NMIY,
     &PanResults::Layer::SMIY, &PanResults::Layer::NPLY, &PanResults::Layer::SPLY, &PanProblem::SY},
};

/// The scale of a page whose largest value is A: the highest power of ten below it, within bounds.
Single scale(Single A, bool moments) {
    Single CUNIT = moments ? 100.0F : 1.0F;
    const Single highest = moments ? 10000000.0F : 1000.0F;
    while (CUNIT < highest && A > CUNIT * 10) CUNIT *= 10;
    return CUNIT;
}

Single interval(Single CRANGE) {
    if (CRANGE > 18) return std::floor(CRANGE / 18);
    if (CRANGE > 9) return 0.5F;
    return CRANGE > 4.5F ? 0.2F : 0.1F;
}

/// Draws one page. Fonts, colours and pens stay as they were last set.
class ContourSheet {
  public:
    ContourSheet(Kernel& kernel, PanProblem& problem, PanResults& results, Integer number, int DIRN,
                 Integer layer)
        : q(kernel),
          pan(problem),
          dir(directions[DIRN - 1]),
          found(results.layers[layer]),
          low(found.*dir.low),
          high(found.*dir.high),
          k(layer),
          X(pan.X[pan.LN]),
          Y(pan.Y[pan.LN]),
          NX(pan.NX[pan.LN]),
          NY(pan.NY[pan.LN]),
          number_(number),
          si_(pan.NUNIT != 0),
          moments_(pan.NSTRESS == PanProblem::MomentTable) {}

    std::string caption() const {
        const std::string layer = pan.NLAYER != 1 ? ", SLAB LAYER " + Str(k) : "";
        return "PROBLEM " + Str(number_) + layer + dir.caption;
    }

    /// All up to the scale, which the user is then asked about.
    void begin() {
        q.DrawStyle = Kernel::Pen::Solid;
        q.QGTxt(pan.TITLE, black, 500, 50);
        extremesLegend();
        loadsLegend();
        q.QGTxt(si_ ? "X COORDINATES IN cm" : "X COORDINATES IN in.", black, 2900, 5600);
        q.QGtxtY("Y COORDINATES", black, 100, 1800);
        q.Font.size = 8;
        grid();
        loads();
        q.Font.size = 14;
        q.ForeColor = QBColor(lightRed);
        highMark();
        setScale();
    }

    std::string prompt() const { return "Contour Interval in " + Str(CUNIT_) + " " + unit(); }
    std::string proposal() const { return Str(CINT_); }

    void finish() {
        contours();
        q.Font.size = 8;
        for (int m = 1; m <= pan.NCNF; ++m) forceMark(ToLong(pan.NN[m].number()));
        lowMark();
        captions();
        xLabels();
        q.Font = {"Courier New", 8};
        yLabels();
        q.Font.size = 10;
    }

  private:
    const char* unit() const { return moments_ ? (si_ ? "cm-kN/cm" : "in.-lb/in.") : (si_ ? "kPa" : "psi"); }

    void dot(Kernel::Point at, Single radius, int colour) {
        q.FillColor = QBColor(colour);
        q.FillStyle = Kernel::Fill::Solid;
        q.Circle(at.ix, at.iy, radius, QBColor(colour));
    }

    void star(Single x, Single y) {
        q.Font.size = 20;
        q.QGTxt("*", lightRed, x, y);
        q.Font.size = 10;
    }

    void extremesLegend() {
        dot({170, 400}, 60, lightBlue);
        q.SHOWnum(350, 300, moments_ ? dir.momentLow : dir.stressLow, "#########0.0", low);
        star(4600, 230);
        q.SHOWnum(4900, 300, moments_ ? dir.momentHigh : dir.stressHigh, "#########0.0", high);
        q.Print(unit());
        q.ForeColor = QBColor(black);
        q.FillStyle = Kernel::Fill::Transparent;
    }

    void loadsLegend() {
        q.Box(250, 750, 350, 650, QBColor(lightMagenta));
        q.QGTxt("Uniform Load", lightMagenta, 500, 600);
        if (!moments_) return;
        dot({2400, 700}, 40, lightMagenta);
        q.QGTxt("Nodal Load", lightMagenta, 2600, 600);
        q.QGTxt("+X, -X, +Y or -Y  Nodal Moment in X or Y", lightMagenta, 4200, 600);
    }

    void grid() {
        q.QPlotSetup(9, 85, 32, 84, 0, X[NX], 0, Y[NY]);
        q.PaintRCT(0, q.QWin.RX2, 0, q.QWin.RY2, black);
        corner_ = q.QRtoI(q.QWin.RX1, q.QWin.RY1);
        for (int i = 2; i < NX; ++i) q.QLine(X[i], Y[1], X[i], Y[NY], black);
        for (int j = 2; j < NY; ++j) q.QLine(X[1], Y[j], X[NX], Y[j], black);
    }

    void loads() {
        for (int a = 1; a <= pan.NUDL[1]; ++a) {
            const auto& area = pan.areas[1][a];
            q.PaintRCT(area.XL1, area.XL2, area.YL1, area.YL2, lightMagenta);
        }
        if (!moments_) return;
        for (int m = 1; m <= pan.NNMX; ++m) moment(pan.NNX[m], sign(pan.FMX[m]) + "X", {100, -100});
        for (int m = 1; m <= pan.NNMY; ++m) moment(pan.NNY[m], sign(pan.FMY[m]) + "Y", {0, -200});
    }

    static std::string sign(const Variant& value) { return Str(value).starts_with('-') ? "-" : "+"; }

    void moment(const Variant& node, const std::string& text, Kernel::Point beside) {
        const auto [ix, iy] = nodePoint(ToLong(node.number()));
        q.QGTxt(text, lightMagenta, ix + beside.ix, iy + beside.iy);
    }

    /// The point of a node that is counted from the loaded slab's first one.
    Kernel::Point nodePoint(Long node) const {
        if (NY == 0) throw RunTimeError(Fault::DivisionByZero);
        const Long row = node % NY == 0 ? NY : node % NY;
        return q.QRtoI(X[(node - 1) / NY + 1], Y[row]);
    }

    void highMark() {
        const auto [ix, iy] = nodePoint(found.*dir.highNode - found.NOFF);
        if (high != 0) star(ix - 160, iy - 120);
    }

    void lowMark() {
        const Kernel::Point at = nodePoint(found.*dir.lowNode - found.NOFF);
        if (low != 0) dot(at, 60, lightBlue);
    }

    /// All in Singles, one operation at a time: the number of levels depends on it.
    void setScale() {
        CUNIT_ = scale(std::abs(low) < high ? high : std::abs(low), moments_);
        CTOP_ = std::floor(high / CUNIT_) + 1;
        CBOT_ = std::floor(low / CUNIT_) - 1;
        CRANGE_ = CTOP_ - CBOT_;
        CINT_ = interval(CRANGE_);
    }

    /// A table value of the page's direction, for the node of that number.
    Single tableValue(int node) const {
        if (node > PanProblem::PLOTTED_NODES) throw RunTimeError(Fault::SubscriptOutOfRange);
        return (pan.*dir.table)[node][k];
    }

    void contours() {
        Contours all;
        all.CBOT = CBOT_;
        const int NLEV = ToLong(static_cast<Double>(std::floor(CRANGE_ / CINT_)));
        for (int m = 1; m <= NLEV; ++m)
            all.levels.push_back({CTOP_ - static_cast<Single>(m - 1) * CINT_, m % 2 == 0});
        for (int i = 1; i <= NX; ++i)
            for (int j = 1; j <= NY; ++j) {
                const int n = NY * (i - 1) + j;
                if (n > pan.NNP) throw RunTimeError(Fault::SubscriptOutOfRange);
                all.SGRID[i][j] = finite(tableValue(n) / CUNIT_);
            }
        QCntou(q, pan, all);
    }

    /// Its number is that of the table at the force's node, also where that node is on another slab: kept.
    void forceMark(Long node) {
        const Kernel::Point at = nodePoint(node);
        dot(at, 40, lightMagenta);
        q.QGTxt(Str(std::floor(tableValue(node) / CUNIT_ + 1)), lightMagenta, at.ix - 180, at.iy);
    }

    void captions() {
        q.QGTxt("Contours in " + Str(CUNIT_) + " " + unit(), black, 5900, 5600);
        q.QGTxt("- sign for tension at bottom", black, 5900, 5800);
        Integer layer = k;
        q.SHOWnum(100, 5600, "Slab Layer ", "#", layer);
        if (pan.NSY != 0) q.QGtxtY("symmetry", black, 800, 2000);
        if (pan.NSX != 0) q.QGTxt("symmetry", black, 4500, 5150);
    }

    void xLabels() {
        const Single y = corner_.iy + 200;
        Single labelled = 0;
        for (int i = 1; i < NX; ++i) {
            const Single ix = q.QRtoIX(X[i]);
            if (i > 1 && ix - labelled <= 500) continue;
            labelled = ix;
            if (X[i] < 10)
                q.SHOWn(ix - 200, y, "##0.#", X[i]);
            else
                q.SHOWn(ix - (X[i] < 1000 ? 300.0F : 350.0F), y, "###0", X[i]);
        }
        q.SHOWn(q.QRtoIX(X[NX]) - 300, y, "###0", X[NX]);
    }

    void yLabels() {
        for (int j = 1; j <= NY; ++j)
            q.SHOWn(corner_.ix - 680, q.QRtoIY(Y[j]) - 120, Y[j] < 10 ? "##0.#" : "##0", Y[j]);
    }

    Kernel& q;
    PanProblem& pan;
    const Direction& dir;
    PanResults::Layer& found;
    Single &low, &high;  ///< rounded by the legend before the scale is made of them
    Integer k;
    Bounded<Single, 25>&X, &Y;
    int NX, NY;
    Integer number_;
    bool si_, moments_;
    Kernel::Point corner_;  ///< lower left corner of the grid on the page
    Single CUNIT_ = 0, CTOP_ = 0, CBOT_ = 0, CRANGE_ = 0, CINT_ = 0;
};

}  // namespace

NoContours::NoContours()
    : std::runtime_error(
          "Contours cannot be plotted because at least one of the following conditions was not met: NPY = 1, "
          "NLG = 1, NDAMA = 0, and NPRINT = 0") {}

std::optional<ContourPage> ContourPlot::next(const Ask& ask) {
    if (ended_ || !advance()) return std::nullopt;
    Kernel kernel;
    kernel.QScreen();
    ContourSheet sheet(kernel, *pan_, results_, problem_, DIRN_, k_);
    sheet.begin();
    ended_ = ask({sheet.caption(), kernel.page()}, sheet.prompt(), sheet.proposal()).empty();
    if (ended_) return std::nullopt;
    sheet.finish();
    return ContourPage{sheet.caption(), kernel.page()};
}

/// Moves to the next direction and layer that has a page, into the next problem where it must.
bool ContourPlot::advance() {
    while (true) {
        if (pan_ && DIRN_ <= 2) {
            if (++k_ <= pan_->NLAYER) return true;
            k_ = 0;
            ++DIRN_;
            continue;
        }
        if (!nextProblem()) return false;
    }
}

bool ContourPlot::nextProblem() {
    pan_ = file_.next(PanReader::LoadGroups::First);
    if (!pan_) return false;
    if (pan_->NPY != 1 || pan_->NLG != 1 || pan_->NDAMA != 0 || pan_->NSTRESS == PanProblem::NoTable)
        throw NoContours();
    file_.readLoads(*pan_);
    results_ = file_.readResults(*pan_);
    // The largest stress is not shown, but its node must be one of those that the plot counts.
    for (int layer = 1; layer <= pan_->NLAYER; ++layer)
        ToInteger(static_cast<Double>(results_.layers[layer].NMAX));
    ++problem_;
    DIRN_ = 1;
    k_ = 0;
    return true;
}
