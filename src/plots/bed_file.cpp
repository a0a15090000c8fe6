#include "plots/bed_file.h"

#include "plots/plot_items.h"

namespace {

class Source : public PlotSource {
  public:
    using PlotSource::PlotSource;

    /// What further axles add to ratios from..to of one period and load group.
    void additions(Bounded<Single, 19>& ratios, Bounded<Single, 19>&, int from, int to) {
        for (int j = from; j <= to; ++j)
            ratios[j] = ToSingle(static_cast<Double>(ratios[j]) + static_cast<Double>(in_.readSingle()));
    }
};

class Sink : public PlotSink {
  public:
    using PlotSink::PlotSink;

    void additions(const Bounded<Single, 19>&, const Bounded<Single, 19>& added, int from, int to) {
        for (int j = from; j <= to; ++j) item(added[j]);
    }
};

template <class File, class Bed>
void loadGroup(File& file, Bed& bed, int g) {
    line(file, bed.LOAD[g]);
    line(file, bed.CR[g], bed.CP[g]);
    if (bed.LOAD[g] != 0) {
        line(file, bed.NPT[g], bed.XW[g], bed.YW[g]);
        list(file, 1, bed.NPT[g], bed.XPT[g], bed.YPT[g]);
    } else {
        line(file, bed.NR[g]);
        file.limit(bed.NR[g], BedProblem::RADIAL_POINTS);
        list(file, 1, bed.NR[g], bed.RC[g]);
    }
}

template <class File, class Bed>
void nonlinearBlock(File& file, Bed& bed) {
    line(file, bed.NOLAY);
    for (int n = 1; n <= bed.NOLAY; ++n) {
        file.item(bed.LAYNO[n]);
        line(file, bed.NCLAY[bed.LAYNO[n]]);
    }
    list(file, 1, bed.NOLAY, bed.ZCNOL);
    line(file, bed.RCNOL, bed.XCNOL, bed.YCNOL, bed.SLD);
    list(file, 1, bed.NL, bed.GAM);
    for (int n = 1; n <= bed.NOLAY; ++n) {
        const int i = bed.LAYNO[n];
        if (bed.NCLAY[i] == 1)
            line(file, bed.K2[i], bed.K3[i], bed.K4[i], bed.K0[i]);
        else
            line(file, bed.K2[i], bed.K0[i]);
    }
    for (int p = 1; p <= bed.NPY; ++p)
        for (int n = 1; n <= bed.NOLAY; ++n) {
            const int i = bed.LAYNO[n];
            if (bed.NCLAY[i] == 1)
                line(file, bed.EMIN[p][i], bed.EMAX[p][i], bed.K1[p][i]);
            else
                line(file, bed.PHI[p][i], bed.K1[p][i]);
        }
}

template <class File, class Bed>
void viscoelasticBlock(File& file, Bed& bed) {
    line(file, bed.DUR, bed.NVL);
    list(file, 1, bed.NVL, bed.LNV);
    line(file, bed.NTYME);
    list(file, 1, bed.NTYME, bed.TYME);
    for (int n = 1; n <= bed.NVL; ++n) {
        const int i = bed.LNV[n];
        line(file, bed.BETA[i], bed.TEMPREF[i]);
        list(file, 1, bed.NTYME, bed.CREEP[i]);
    }
    for (int p = 1; p <= bed.NPY; ++p)
        for (int n = 1; n <= bed.NVL; ++n) line(file, bed.TEMP[p][bed.LNV[n]]);
}

template <class File, class Bed>
void damageBlock(File& file, Bed& bed) {
    line(file, bed.NLBT, bed.NLTC);
    for (int p = 1; p <= bed.NPY; ++p) {
        for (int g = 1; g <= bed.NLG; ++g) file.item(bed.TNLR[g][p]);
        file.endLine();
    }
    line(file, bed.NZ);
    list(file, 1, bed.NZ, bed.ZC);
    for (int p = 1; p <= bed.NPY; ++p)
        for (int g = 1; g <= bed.NLG; ++g) {
            auto& ratios = bed.DRATIO[p][g];
            auto& added = bed.ADDED[p][g];
            list(file, 1, bed.NZ, ratios);
            if (bed.LOAD[g] > 1) {
                file.additions(ratios, added, 1, bed.NLBT);
                file.additions(ratios, added, bed.NLBT + 1, bed.NLBT + bed.NLTC);
                file.endLine();
            }
        }
    line(file, bed.KBT, bed.KTC);
    if (bed.NLBT != 0) line(file, bed.DRBT);
    if (bed.NLTC != 0) line(file, bed.DRTC);
    line(file, bed.DESLIFE);
}

template <class File, class Bed>
void problem(File& file, Bed& bed) {
    file.title(bed.TITLE);
    line(file, bed.MATL, bed.NDAMA, bed.NPY, bed.NLG);
    line(file, bed.NL, bed.NZ, bed.NUNIT);
    list(file, 1, bed.NL - 1, bed.TH);
    list(file, 1, bed.NL, bed.PR);
    if (bed.NDAMA == 0) list(file, 1, bed.NZ, bed.ZC);
    for (int p = 1; p <= bed.NPY; ++p) list(file, 1, bed.NL, bed.E[p]);
    for (int g = 1; g <= bed.NLG; ++g) loadGroup(file, bed, g);
    if (bed.MATL == 2 || bed.MATL == 4) nonlinearBlock(file, bed);
    if (bed.MATL == 3 || bed.MATL == 4) viscoelasticBlock(file, bed);
    if (bed.NDAMA != 0) damageBlock(file, bed);
}

}  // namespace

std::optional<BedProblem> BedReader::next() {
    if (!left_) left_ = in_.readInteger();
    if (*left_ <= 0) return std::nullopt;
    --*left_;
    BedProblem bed;
    Source source(in_);
    problem(source, bed);
    return bed;
}

void writeBed(ListWriter& out, const std::vector<BedProblem>& problems) {
    out.number(ToInteger(static_cast<Double>(problems.size())));
    out.endLine();
    Sink sink(out);
    for (const BedProblem& bed : problems) problem(sink, bed);
}

void writeBedFile(const std::string& path, const std::vector<BedProblem>& problems) {
    ListWriter out(path);
    writeBed(out, problems);
    out.close();
}
