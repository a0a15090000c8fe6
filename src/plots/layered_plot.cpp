#include "plots/layered_plot.h"

#include "plots/material_text.h"

namespace {

// Palette colours.
constexpr int black = 0, green = 2, lightBlue = 9, lightGreen = 10, lightRed = 12, lightMagenta = 13;

constexpr Single captionSize = 10, materialSize = 8;
constexpr int thick = 3;

/// Draws one page. Fonts, colours and pens stay as they were last set: the depths under the first one and
/// the scale of the section have the size of the material texts.
class LayeredPage {
  public:
    LayeredPage(Kernel& kernel, BedProblem& problem, Integer number, Integer period, Integer group)
        : q(kernel), bed(problem), number_(number), p(period), g(group), si_(problem.NUNIT != 0) {
        for (int i = 2; i <= bed.NL; ++i) Z[i] = Z[i - 1] + bed.TH[i - 1];
        reach_ = si_ ? 250.0F : 100.0F;
    }

    void draw() {
        q.QPlotSetup(13, 53, 34, 63, 0, reach_, 1.5F * Z[bed.NL], 0);
        q.Font.size = captionSize;
        heading();
        if (bed.NDAMA != 0) damage();
        sectionFrame();
        sectionMarks();
        mapCorners();
        layers();
        sectionCaptions();

        q.QPlotSetup(13, 53, 70, 91, 0, reach_, 0, si_ ? 75.0F : 30.0F);
        mapCorners();
        planFrame();
        planMarks();
        wheels();
        loadData();
        legend();
    }

  private:
    bool singleWheel() const { return bed.LOAD[g] == 0; }
    bool lastPage() const { return p == bed.NPY && g == bed.NLG; }

    void heading() {
        q.SHOWnum(500, 300, "Problem No.", "##", number_);
        Integer period = p, group = g;
        q.PRN(" Period No.", "##", period);
        q.PRN(" Load Group No.", "##", group);
    }

    void damage() {
        auto& ratios = bed.DRATIO[p][g];
        q.PRN("  TNLR =", "#####0.###", bed.TNLR[g][p]);
        if (bed.NLBT != 0) {
            q.SHOWnum(1200, 550, "Damage Ratio: Fatigue C. =", "0.#####", ratios[bed.KBT]);
            if (bed.NLTC != 0) q.SHOWnum(2880, 750, "P. Deform. =", "0.#####", ratios[bed.NLBT + bed.KTC]);
        } else {
            q.SHOWnum(1200, 550, "Damage Ratio: P. Deform. =", "0.#####", ratios[bed.KTC]);
        }
        if (lastPage()) designLife();
    }

    void designLife() {
        q.ForeColor = QBColor(green);
        if (bed.NLBT != 0) q.SHOWnum(6100, 5200, "D.R.(Fatigue C.) = ", "0.######", bed.DRBT);
        if (bed.NLTC != 0) q.SHOWnum(6100, 5400, "D.R.(P. Deform.) = ", "0.######", bed.DRTC);
        q.SHOWnum(6100, 5600, "Design Life = ", "###.##", bed.DESLIFE);
        q.Print("yrs");
        q.ForeColor = QBColor(black);
    }

    void sectionFrame() {
        const Single bottom = q.QWin.RY1;
        q.QLine(0, bottom, reach_, bottom, black);
        q.QLine(0, 0, reach_, 0, black);
        q.QLine(-1, bottom, -1, 0, black);
    }

    struct Stroke {
        Single a, b;
    };
    /// A point on an interface is marked just above it, a point inside a layer or hardly below an interface
    /// just below its own depth, a point in the last layer centred on its depth.
    Stroke strokeAt(Single depth) const {
        if (depth <= 0) return {-0.075F, 0.075F};
        for (int k = 1; k <= bed.NL; ++k) {
            if (depth == Z[k]) return {depth - 0.15F, depth - 0.3F};
            if (depth - Z[k] < 0.001F) return {depth + 0.15F, depth + 0.3F};
        }
        return {depth - 0.075F, depth + 0.075F};
    }

    void sectionMarks() {
        q.DrawWidth = thick;
        const int points = singleWheel() ? bed.NR[g] : bed.NPT[g];
        for (int i = 1; i <= bed.NZ; ++i) {
            const Stroke stroke = strokeAt(bed.ZC[i]);
            for (int j = 1; j <= points; ++j) {
                const Single x = singleWheel() ? bed.RC[g][j] : bed.XPT[g][j];
                q.QLine(x, stroke.a, x, stroke.b, lightMagenta);
            }
        }
        q.DrawWidth = 1;
    }

    void mapCorners() {
        const auto [right, top] = q.QRtoI(q.QWin.RX2, q.QWin.RY2);
        const auto [left, bottom] = q.QRtoI(q.QWin.RX1, q.QWin.RY1);
        ixL_ = left, ixR_ = right, iyB_ = bottom, iyT_ = top;
    }

    void layers() {
        for (int i = 1; i <= bed.NL; ++i) {
            const Single iy = q.QRtoIY(Z[i]);
            depthLabel(i, iy);
            q.Font.size = materialSize;
            materialText(q, bed, p, i, ixL_, iy);
            if (const int n = nonlinearEntry(bed, i)) stressPoint(bed.ZCNOL[n]);
            if (i < bed.NL) q.QLine(q.QWin.RX1, Z[i + 1], q.QWin.RX2, Z[i + 1], black);
        }
    }

    /// Where the depth as it was has no fraction its label is short, and stands nearer to the edge. A
    /// fraction that the label then rounds away still counts: kept.
    void depthLabel(int i, Single iy) {
        Single x = ixL_ - (Z[i] < 10 ? 520.0F : 630.0F);
        if (Str(Z[i]).find('.') == std::string::npos) x += 100;
        q.SHOWn(x, iy - 100, "##0.0", Z[i]);
    }

    void stressPoint(Single depth) {
        const Single surface = singleWheel() ? bed.RCNOL : bed.XCNOL;
        const auto [ix, iy] = q.QRtoI(depth * bed.SLD + surface, depth);
        dot(ix, iy);
    }

    void dot(Single ix, Single iy) {
        q.FillColor = QBColor(lightGreen);
        q.FillStyle = Kernel::Fill::Solid;
        q.Circle(ix, iy, 20, QBColor(lightGreen));
        q.FillStyle = Kernel::Fill::Transparent;
    }

    void sectionCaptions() {
        q.QStep.realX = (q.QWin.RX2 - q.QWin.RX1) / 5;
        q.QStep.deviceX = (ixR_ - ixL_) / 5;
        q.QXaxis(ixL_, iyB_);
        q.Font.size = captionSize;
        q.QGTxt("SUBGRADE", lightBlue, 2300, iyB_ - 200);
        q.QGTxt(si_ ? "DISTANCE IN CENTIMETERS" : "DISTANCE IN INCHES", black, 2200, 5600);
        q.QGtxtY(si_ ? "DEPTH cm" : "DEPTH in", black, 550, 2800);
        q.QGTxt(bed.TITLE, black, 500, 50);
    }

    void planFrame() {
        const Single edge = si_ ? -25.0F : -10.0F;
        q.QLine(edge, 0, edge, q.QWin.RY2, black);
        q.QStep.realY = (q.QWin.RY2 - q.QWin.RY1) / 3;
        q.QStep.deviceY = (iyB_ - iyT_) / 3;
        q.QYaxis(ixL_, iyB_);
        q.QGtxtY(si_ ? "PLAN cm" : "PLAN in", black, 300, 500);
    }

    void planMarks() {
        constexpr Single half = 0.075F;
        q.DrawWidth = thick;
        if (singleWheel())
            for (int j = 1; j <= bed.NR[g]; ++j)
                q.QLine(bed.RC[g][j] - half, 0, bed.RC[g][j] + half, 0, lightMagenta);
        else
            for (int j = 1; j <= bed.NPT[g]; ++j)
                q.QLine(bed.XPT[g][j] - half, bed.YPT[g][j], bed.XPT[g][j] + half, bed.YPT[g][j],
                        lightMagenta);
        q.DrawWidth = 1;
    }

    /// The first wheel stands at the origin, duals lie along y, axles along x.
    void wheels() {
        const Single radius = q.QRtoIX(bed.CR[g]) - ixL_;
        if (singleWheel()) {
            q.Circle(ixL_, iyB_, radius, q.ForeColor);
            return;
        }
        const Single axle = bed.LOAD[g] > 1 ? q.QRtoIX(bed.XW[g]) - ixL_ : 0;
        const Single dual = q.QRtoIY(bed.YW[g]);
        for (int i = 1; i <= bed.LOAD[g]; ++i) {
            const Single x = axle * static_cast<Single>(i - 1) + ixL_;
            q.Circle(x, iyB_, radius, q.ForeColor);
            q.Circle(x, dual, radius, q.ForeColor);
        }
    }

    void loadData() {
        const char* length = si_ ? "cm " : "in.";
        q.Font.size = captionSize;
        q.ForeColor = QBColor(lightRed);
        q.SHOWnum(5800, 600, "Contact Radius =", "##0.###", bed.CR[g]);
        q.Print(length);
        q.SHOWnum(5800, 900, "Contact Pressure =", "###0.###", bed.CP[g]);
        q.Print(si_ ? "kPa" : "psi");
        if (bed.LOAD[g] > 0) {
            q.SHOWnum(5800, 1200, "Dual Spacing =", "###0.###", bed.YW[g]);
            q.Print(length);
        }
        if (bed.LOAD[g] > 1) {
            q.SHOWnum(5800, 1500, "Tandem Spacing =", "###0.###", bed.XW[g]);
            q.Print(length);
        }
        q.ForeColor = QBColor(black);
    }

    void legend() {
        q.DrawWidth = thick;
        q.Line(5800, 1920, 5810, 1920, QBColor(lightMagenta));
        q.DrawWidth = 1;
        q.QGTxt("Response points", black, 5900, 1800);
        if (bed.MATL != 2 && bed.MATL != 4) return;
        dot(5800, 2200);
        q.QGTxt("Stress points for", black, 5900, 2100);
        q.QGTxt("nonlinear layers", black, 5900, 2350);
    }

    Kernel& q;
    BedProblem& bed;
    Integer number_, p, g;
    bool si_;
    Single reach_;                                  ///< length of both views in real units
    Bounded<Single, 19> Z{};                        ///< depth of each layer's top, anew for each page
    Single ixL_ = 0, ixR_ = 0, iyB_ = 0, iyT_ = 0;  ///< corners of the current view on the page
};

}  // namespace

std::optional<Page> LayeredPlot::next() {
    if (!advance()) return std::nullopt;
    Kernel kernel;
    kernel.QScreen();
    LayeredPage(kernel, *bed_, problem_, p_, g_).draw();
    return kernel.page();
}

/// Moves to the next period and load group that has a page, into the next problem where it must.
bool LayeredPlot::advance() {
    while (true) {
        if (bed_ && p_ <= bed_->NPY) {
            if (++g_ <= bed_->NLG) return true;
            g_ = 0;
            ++p_;
            continue;
        }
        bed_ = file_.next();
        if (!bed_) return false;
        ++problem_;
        p_ = 1;
        g_ = 0;
    }
}
