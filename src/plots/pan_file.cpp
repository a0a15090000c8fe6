#include "plots/pan_file.h"

#include "plots/plot_items.h"

namespace {

class Source : public PlotSource {
  public:
    using PlotSource::PlotSource;

    /// With it, an area in square centimetres gives kN. A unit number other than 1 leaves kPa: kept.
    void pressure(Single& QQ, Integer NUNIT) {
        item(QQ);
        if (NUNIT == 1) QQ /= 10000;
    }
};

class Sink : public PlotSink {
  public:
    using PlotSink::PlotSink;

    void pressure(Single QQ, Integer) { item(QQ); }
};

template <class File, class Pan>
void general(File& file, Pan& pan, PanReader::LoadGroups groups) {
    file.title(pan.TITLE);
    line(file, pan.NFOUND, pan.NDAMA, pan.NPY, pan.NLG);
    line(file, pan.NSLAB, pan.NJOINT);
    for (int s = 1; s <= pan.NSLAB; ++s) {
        file.item(pan.NX[s]);
        file.item(pan.NY[s]);
        list(file, 1, 4, pan.JONO[s]);
    }
    line(file, pan.NLAYER, pan.NSX, pan.NSY, pan.NUNIT);
    for (int s = 1; s <= pan.NSLAB; ++s) {
        list(file, 1, pan.NX[s], pan.X[s]);
        list(file, 1, pan.NY[s], pan.Y[s]);
    }
    list(file, 1, pan.NLAYER, pan.T, pan.PR, pan.YM);
    list(file, 1, groups == PanReader::LoadGroups::All ? pan.NLG : Integer{1}, pan.NUDL);
    line(file, pan.NCNF, pan.NNMX, pan.NNMY, pan.NSTRESS);
}

template <class File, class Pan>
void foundation(File& file, Pan& pan) {
    if (pan.NFOUND == 0) line(file, pan.SUBMOD);
    if (pan.NFOUND == 1) line(file, pan.YMS, pan.PRS);
    if (pan.NFOUND != 2) return;
    line(file, pan.NL);
    list(file, 1, pan.NL - 1, pan.TH);
    list(file, 1, pan.NL, pan.E);
    list(file, 1, pan.NL, pan.PRBF);
}

template <class File, class Pan>
void table(File& file, Pan& pan) {
    line(file, pan.NNP, pan.LN);
    file.limit(pan.NNP, PanProblem::PLOTTED_NODES);
    for (int n = 1; n <= pan.NNP; ++n) list(file, 1, pan.NLAYER, pan.SX[n], pan.SY[n]);
}

template <class File, class Pan>
void loads(File& file, Pan& pan) {
    for (int g = 1; g <= pan.NLG; ++g) {
        file.limit(pan.NUDL[g], PanProblem::PLOTTED_AREAS);
        for (int a = 1; a <= pan.NUDL[g]; ++a) {
            auto& area = pan.areas[g][a];
            file.item(area.LS);
            file.item(area.XL1);
            file.item(area.XL2);
            file.item(area.YL1);
            file.item(area.YL2);
            file.pressure(area.QQ, pan.NUNIT);
            file.endLine();
        }
    }
    list(file, 1, pan.NCNF, pan.NN, pan.FF);
    list(file, 1, pan.NNMX, pan.NNX, pan.FMX);
    list(file, 1, pan.NNMY, pan.NNY, pan.FMY);
    list(file, 1, pan.NPY, pan.FSAF);
    foundation(file, pan);
    if (pan.NDAMA > 0)
        for (int p = 1; p <= pan.NPY; ++p) {
            for (int g = 1; g <= pan.NLG; ++g) file.item(pan.TNLR[g][p]);
            file.endLine();
        }
    if (pan.NSTRESS != PanProblem::NoTable) table(file, pan);
}

template <class File, class Results>
void page(File& file, const PanProblem& pan, Results& results) {
    for (int k = 1; k <= pan.NLAYER; ++k) {
        auto& layer = results.layers[k];
        line(file, layer.NMAX, layer.SMAX, layer.NOFF);
        if (pan.NSTRESS != PanProblem::NoTable)
            line(file, layer.NMIX, layer.SMIX, layer.NPLX, layer.SPLX, layer.NMIY, layer.SMIY, layer.NPLY,
                 layer.SPLY);
    }
    if (pan.NDAMA > 0) list(file, 1, pan.NLAYER, results.CIDX);
}

}  // namespace

std::optional<PanProblem> PanReader::next(LoadGroups groups) {
    if (!left_) left_ = in_.readInteger();
    if (*left_ <= 0) return std::nullopt;
    --*left_;
    PanProblem pan;
    Source source(in_);
    general(source, pan, groups);
    return pan;
}

void PanReader::readLoads(PanProblem& pan) {
    Source source(in_);
    loads(source, pan);
}

PanResults PanReader::readResults(const PanProblem& pan) {
    PanResults results;
    Source source(in_);
    page(source, pan, results);
    return results;
}

void PanReader::readDesignLife(PanProblem& pan) {
    Source source(in_);
    line(source, pan.DESLIFE);
}

void writePan(ListWriter& out, const std::vector<PanRun>& runs) {
    out.number(ToInteger(static_cast<Double>(runs.size())));
    out.endLine();
    Sink sink(out);
    for (const PanRun& run : runs) {
        const PanProblem& pan = run.problem;
        general(sink, pan, PanReader::LoadGroups::All);
        loads(sink, pan);
        for (int p = 1; p <= pan.NPY; ++p)
            for (int g = 1; g <= pan.NLG; ++g) page(sink, pan, run.results[p][g]);
        if (pan.NDAMA > 0) line(sink, pan.DESLIFE);
    }
}

void writePanFile(const std::string& path, const std::vector<PanRun>& runs) {
    ListWriter out(path);
    writePan(out, runs);
    out.close();
}
