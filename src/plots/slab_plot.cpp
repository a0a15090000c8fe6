#include "plots/slab_plot.h"

#include <algorithm>

namespace {

// Palette colours.
constexpr int black = 0, green = 2, lightBlue = 9, lightRed = 12, lightMagenta = 13;

constexpr int mostSlabs = 6;

struct Viewport {
    Single PX1, PX2, PY1, PY2;
};

/// Where slab s of 1 to 6 slabs stands on the page; five slabs stand like six.
Viewport viewport(int NSLAB, int s) {
    static constexpr Viewport alone[] = {{9, 85, 32, 74}};
    static constexpr Viewport two[] = {{9, 45, 32, 74}, {49, 85, 32, 74}};
    static constexpr Viewport three[] = {{8, 28, 29, 65}, {35, 58, 32, 74}, {69, 95, 20, 70}};
    static constexpr Viewport four[] = {{9, 45, 32, 52}, {9, 45, 54, 74}, {49, 85, 32, 52}, {49, 85, 54, 74}};
    static constexpr Viewport six[] = {{8, 28, 29, 46},  {9, 32, 54, 74},  {35, 58, 32, 52},
                                       {35, 58, 54, 74}, {61, 85, 32, 52}, {61, 85, 54, 74}};
    static constexpr const Viewport* layouts[mostSlabs] = {alone, two, three, four, six, six};
    return layouts[NSLAB - 1][s - 1];
}

/// Where a slab names the joint on one of its sides: 1 left, 2 right, 3 bottom, 4 top.
struct JointPlace {
    int slab, side;
    bool vertical;
    Single x, y;
};
constexpr JointPlace jointsOfFour[] = {
    {1, 2, true, 5000, 3600},
    {1, 4, false, 2600, 3500},
    {4, 1, true, 5000, 2000},
    {4, 3, false, 6900, 3500},
};
constexpr JointPlace jointsOfSix[] = {
    {1, 2, true, 3600, 3600}, {1, 4, false, 1800, 3500},  //
    {4, 1, true, 3600, 2000}, {4, 2, true, 6400, 2000},  {4, 3, false, 4630, 3500},
    {5, 1, true, 6400, 3600}, {5, 4, false, 7460, 3500},
};

bool hasPoint(Single value) { return Str(value).find('.') != std::string::npos; }

/// How far a label stands left of its place, by the digits before its point.
Single leftBy(Single value, Single one, Single two, Single three, Single more) {
    return value < 10 ? one : value < 100 ? two : value < 1000 ? three : more;
}

/// Draws one page. Fonts, colours and pens stay as they were last set.
class SlabPage {
  public:
    SlabPage(Kernel& kernel, PanProblem& problem, PanResults& results, Integer number, Integer period,
             Integer group)
        : q(kernel),
          pan(problem),
          found(results),
          number_(number),
          p(period),
          g(group),
          si_(problem.NUNIT != 0),
          pressure_(si_ ? "kPa" : "psi"),
          force_(si_ ? "kN" : "lb") {
        for (int s = 1; s <= pan.NSLAB; ++s) NODEBASE[s] = NODEBASE[s - 1] + pan.NX[s] * pan.NY[s];
    }

    void draw() {
        heading();
        largestStress();
        loadSummaries();
        if (pan.NSY != 0) q.QGtxtY("symmetry", black, 800, 2500);
        if (pan.NSX != 0) q.QGTxt("symmetry", black, 4500, 5200);
        if (pan.NDAMA != 0 && g == pan.NLG && p == pan.NPY) designLife();
        q.QGTxt(si_ ? "X COORDINATES IN cm" : "X COORDINATES IN in.", black, 3500, 5600);
        q.QGtxtY("Y COORDINATES", black, -50, 2000);
        for (int s = 1; s <= pan.NSLAB; ++s) slab(s);
        profile();
    }

  private:
    struct Corners {
        Single ixL, iyB, ixR, iyT;
    };
    Corners mapCorners() const {
        const auto [ixL, iyB] = q.QRtoI(q.QWin.RX1, q.QWin.RY1);
        const auto [ixR, iyT] = q.QRtoI(q.QWin.RX2, q.QWin.RY2);
        return {ixL, iyB, ixR, iyT};
    }

    /// The values of both layers, as "a & b".
    void perLayer(Single x, Single y, const char* label, const char* format, Single& first, Single& second) {
        q.SHOWnum(x, y, label, format, first);
        if (pan.NLAYER == 2) q.PRN(" & ", format, second);
    }

    void heading() {
        Integer period = p, group = g;
        q.QGTxt(pan.TITLE, black, 500, 50);
        q.SHOWnum(500, 300, "Problem No.", "##", number_);
        q.PRN(" Period No.", "##", period);
        q.PRN(" Load Group No.", "##", group);
        q.PRN(" FSAF =", "##0.###", pan.FSAF[p]);
        q.SHOWnum(500, 600, "NSX =", "#0", pan.NSX);
        q.PRN(" NSY =", "#0", pan.NSY);
        if (pan.NDAMA != 0) q.PRN(" TNLR =", "####0.####", pan.TNLR[g][p]);
    }

    void largestStress() {
        q.ForeColor = QBColor(lightBlue);
        stressMark({270, 945});
        perLayer(500, 850, "Max. Stress =", "###0.###", found.layers[1].SMAX, found.layers[2].SMAX);
        q.Print(pressure_);
        if (pan.NDAMA != 0) perLayer(6300, 5600, "CI =", "0.#####", found.CIDX[1], found.CIDX[2]);
        q.ForeColor = QBColor(black);
    }

    /// The only mark that is filled.
    void stressMark(Kernel::Point at) {
        q.FillColor = QBColor(lightBlue);
        q.FillStyle = Kernel::Fill::Solid;
        q.Circle(at.ix, at.iy, 40, QBColor(lightBlue));
        q.FillStyle = Kernel::Fill::Transparent;
    }

    void forceMark(Kernel::Point at) { q.Circle(at.ix, at.iy, 60, QBColor(lightRed)); }

    void loadSummaries() {
        if (pan.NUDL[g] == 0) {
            if (pan.NCNF != 0) concentrated({290, 1200}, 1100, " Min");
            return;
        }
        Single UMAX = 0, UMIN = 0;
        for (int a = 1; a <= pan.NUDL[g]; ++a) {
            const auto& area = pan.areas[g][a];
            const Single F = finite((area.XL2 - area.XL1) * (area.YL2 - area.YL1) * area.QQ);
            UMAX = a == 1 ? F : std::max(UMAX, F);
            UMIN = a == 1 ? F : std::min(UMIN, F);
        }
        q.Box(250, 1250, 350, 1150, QBColor(lightMagenta));
        range(1100, "Uniform L.:Max.", UMAX, " Min.", UMIN);
        // In a damage run the design life takes this line.
        if (pan.NCNF != 0 && pan.NDAMA == 0) concentrated({280, 1450}, 1350, " Min.");
    }

    void concentrated(Kernel::Point mark, Single y, const char* leastLabel) {
        Single FMAXC = 0, FMINC = 0;
        for (int m = 1; m <= pan.NCNF; ++m) {
            const Single FF = ToSingle(pan.FF[m].number());
            FMAXC = m == 1 ? FF : std::max(FMAXC, FF);
            FMINC = m == 1 ? FF : std::min(FMINC, FF);
        }
        forceMark(mark);
        range(y, "Concen. L.:Max.", FMAXC, leastLabel, FMINC);
    }

    void range(Single y, const char* label, Single& most, const char* leastLabel, Single& least) {
        q.SHOWnum(500, y, label, "######0", most);
        q.PRN(leastLabel, "######0", least);
        q.Print(force_);
    }

    void designLife() {
        q.ForeColor = QBColor(green);
        q.SHOWnum(500, 1350, "Design Life = ", "###.#0", pan.DESLIFE);
        q.Print(" yrs");
        q.ForeColor = QBColor(black);
    }

    void slab(int s) {
        q.Font.size = 8;
        jointCaptions(s);
        const Viewport v = viewport(pan.NSLAB, s);
        q.QPlotSetup(v.PX1, v.PX2, v.PY1, v.PY2, 0, pan.X[s][pan.NX[s]], 0, pan.Y[s][pan.NY[s]]);
        q.PaintRCT(0, q.QWin.RX2, 0, q.QWin.RY2, black);
        const Corners corners = mapCorners();
        gridLines(s);
        for (int a = 1; a <= pan.NUDL[g]; ++a) {
            const auto& area = pan.areas[g][a];
            if (area.LS == s) q.PaintRCT(area.XL1, area.XL2, area.YL1, area.YL2, lightMagenta);
        }
        for (int m = 1; m <= pan.NCNF; ++m) forceAt(s, ToLong(pan.NN[m].number()));
        q.Font.size = 14;
        q.ForeColor = QBColor(lightBlue);
        stressAt(s, ToLong(static_cast<Double>(found.layers[1].NMAX)));
        if (pan.NSLAB > 1) q.Font.face = "MS Serif";
        q.Font.size = pan.NSLAB == 3 || pan.NSLAB == 6 ? 6 : 8;
        q.ForeColor = QBColor(black);
        if (s == 1 || pan.NSLAB == 2 || (pan.NSLAB == 3 && s == 2) || s == 3 || s == 5) xLabels(s, corners);
        q.Font.face = "Courier New";
        q.Font.size = 8;
        if (s == 1 || (s == 2 && pan.NSLAB == 4)) yLabels(s, corners);
    }

    template <class Joint>
    void jointCaption(Joint n, bool vertical, Single x, Single y) {
        const std::string text = "JOINT" + Str(n);
        if (vertical)
            q.QGtxtY(text, green, x, y);
        else
            q.QGTxt(text, green, x, y);
    }

    void jointCaptions(int s) {
        const int slabs = pan.NSLAB;
        // Slab 2 would write the same text in the same place, in the font that slab 1 leaves.
        if (slabs == 2 && s == 1) {
            const bool vertical = pan.JONO[1][2] == 1;
            jointCaption(Integer{1}, vertical, vertical ? 4900 : 2500, vertical ? 2600 : 1600);
        }
        if (slabs == 3 && s <= 2) jointOfThree(s);
        if (slabs == 4) jointsAt(s, jointsOfFour, 4);
        if (slabs > 4) jointsAt(s, jointsOfSix, 7);
    }

    /// Slabs side by side have their joint on the right, slabs in a column on the top.
    void jointOfThree(int s) {
        const auto column = static_cast<Single>(s - 1) * 2830;
        const Single right = pan.JONO[s][2];
        if (right == 1 || right == 2)
            jointCaption(right, true, column + 3570, 2600);
        else
            jointCaption(pan.JONO[s][4], false, column + 1800, 1600);
    }

    template <class Places>
    void jointsAt(int s, const Places& places, Integer joints) {
        for (Integer n = 1; n <= joints; ++n)
            for (const JointPlace& place : places)
                if (place.slab == s && pan.JONO[s][place.side] == static_cast<Single>(n))
                    jointCaption(n, place.vertical, place.x, place.y);
    }

    void gridLines(int s) {
        const auto &X = pan.X[s], &Y = pan.Y[s];
        const int NX = pan.NX[s], NY = pan.NY[s];
        for (int j = 2; j < NX; ++j) q.QLine(X[j], Y[1], X[j], Y[NY], black);
        for (int j = 2; j < NY; ++j) q.QLine(X[1], Y[j], X[NX], Y[j], black);
    }

    bool owns(int s, Long node) const { return node <= NODEBASE[s] && (s == 1 || node > NODEBASE[s - 1]); }

    /// The point of a slab's node, counted through all slabs. A node of the last row has row 0, which stands
    /// at y = 0.
    Kernel::Point nodePoint(int s, Long node, bool lastRowAtItsPlace) const {
        const Long m = node - NODEBASE[s - 1];
        if (pan.NY[s] == 0) throw RunTimeError(Fault::DivisionByZero);
        Long row = m % pan.NY[s];
        if (row == 0 && lastRowAtItsPlace) row = pan.NY[s];
        return q.QRtoI(pan.X[s][(m - 1) / pan.NY[s] + 1], pan.Y[s][row]);
    }

    /// Only in slab 1 a force on the last row is drawn there: kept.
    void forceAt(int s, Long node) {
        if (owns(s, node)) forceMark(nodePoint(s, node, s == 1));
    }

    void stressAt(int s, Long node) {
        if (owns(s, node)) stressMark(nodePoint(s, node, false));
    }

    /// Of a crowded pair the second label goes, and the next one stands again.
    void xLabels(int s, const Corners& corners) {
        auto& X = pan.X[s];
        const int NX = pan.NX[s];
        Single before = 0;
        bool labelled = false;
        for (int j = 1; j <= NX; ++j) {
            const Single ix = q.QRtoIX(X[j]);
            const bool crowded = j > 1 && j < NX && ix - before <= 400 && labelled;
            before = ix;
            labelled = !crowded;
            if (crowded) continue;
            const Single left = leftBy(X[j], 100, 160, 240, 320) + (hasPoint(X[j]) ? 100.0F : 0.0F);
            q.SHOWn(ix - left, corners.iyB + 200, "###.0", X[j]);
        }
    }

    void yLabels(int s, const Corners& corners) {
        auto& Y = pan.Y[s];
        for (int j = 1; j <= pan.NY[s]; ++j) {
            const Single iy = q.QRtoIY(Y[j]);
            const Single left = leftBy(Y[j], 730, 840, 950, 1060) - (hasPoint(Y[j]) ? 0.0F : 200.0F);
            q.SHOWn(corners.ixL - left, iy - 120, "###.0", Y[j]);
        }
    }

    void profile() {
        Bounded<Single, 9> DP;
        int DPN = 1;
        const auto below = [&](Single thickness) {
            DP[DPN + 1] = DP[DPN] + thickness;
            ++DPN;
        };
        for (int n = 1; n <= pan.NLAYER; ++n) below(pan.T[n]);
        if (pan.NFOUND == 2)
            for (int k = 1; k < pan.NL; ++k) below(pan.TH[k]);

        q.QPlotSetup(56, 85, 75, 91, 0, pan.X[1][pan.NX[1]], 1.5F * DP[DPN], 0);
        q.PaintRCT(0, q.QWin.RX2, q.QWin.RY1, 0, black);
        const Corners corners = mapCorners();
        // With a layer foundation the depth that is looked at is not that of its last layer: kept.
        const Single shift = hasPoint(DP[pan.NFOUND == 2 ? pan.NL : pan.NLAYER + 1]) ? 0.0F : 180.0F;
        Single before = 0;
        for (int n = 1; n <= DPN; ++n) {
            const Single iy = q.QRtoIY(DP[n]);
            if (n == 1 || iy - before > 50) {
                const Single x = corners.ixL - (DP[n] < 10 ? 440.0F : 550.0F) + shift;
                q.SHOWn(x, iy - 100, "##0.0", DP[n]);
            }
            material(n, corners.ixL, iy, n == 1 || iy - before >= 50);
            if (n > 1) q.QLine(0, DP[n], q.QWin.RX2, DP[n], black);
            before = iy;
        }
        q.QGtxtY("PLAN", black, corners.ixR + 50, 2900);
        q.QGtxtY("PROFILE", black, corners.ixR + 50, corners.iyT - 300);
        q.QGtxtY("DEPTH", black, corners.ixL - 650, corners.iyT - 50);
        q.Font.size = 10;
    }

    /// The material under depth n: a slab layer or the foundation.
    void material(int n, Single x, Single y, bool room) {
        const int k = n - pan.NLAYER;
        if (k <= 0) {
            elastic(x, y, "YM =", pan.YM[n], " PR =", pan.PR[n]);
        } else if (pan.NFOUND == 0) {
            q.SHOWnum(x, y, "SUBMOD =", "###0.###", pan.SUBMOD);
            q.Print(si_ ? "kN/m^3" : "pci");
        } else if (pan.NFOUND == 1) {
            elastic(x, y, "YMS =", pan.YMS, " PRS =", pan.PRS);
        } else if (pan.NFOUND == 2 && room) {
            elastic(x, y, "E =", pan.E[k], " PRBF =", pan.PRBF[k]);
        }
    }

    template <class Modulus>
    void elastic(Single x, Single y, const char* modulusLabel, Modulus& modulus, const char* ratioLabel,
                 Single& ratio) {
        q.SHOWnum(x, y, modulusLabel, "0.000E+00", modulus);
        q.Print(pressure_);
        q.PRN(ratioLabel, "0.####", ratio);
    }

    Kernel& q;
    PanProblem& pan;
    PanResults& found;
    Integer number_, p, g;
    bool si_;
    const char *pressure_, *force_;
    Bounded<int, mostSlabs> NODEBASE;  ///< the last node of each slab
};

}  // namespace

std::optional<Page> SlabPlot::next() {
    if (!advance()) return std::nullopt;
    PanResults results = file_.readResults(*pan_);
    // Any damage flag but 0 has a last page with a design life, and only a positive one has indexes.
    if (pan_->NDAMA != 0 && g_ == pan_->NLG && p_ == pan_->NPY) file_.readDesignLife(*pan_);
    Kernel kernel;
    kernel.QScreen();
    SlabPage(kernel, *pan_, results, problem_, p_, g_).draw();
    return kernel.page();
}

/// Moves to the next period and load group that has a page, into the next problem where it must.
bool SlabPlot::advance() {
    while (true) {
        if (pan_ && p_ <= pan_->NPY) {
            if (++g_ <= pan_->NLG) return true;
            g_ = 0;
            ++p_;
            continue;
        }
        pan_ = file_.next();
        if (!pan_) return false;
        file_.readLoads(*pan_);
        ++problem_;
        p_ = 1;
        g_ = 0;
    }
}
