#include "plots/bed_file.h"

#include <charconv>
#include <cmath>

#include "platform/run_time_error.h"

namespace {

// The order of the file is stated once, by the templates below. They walk a problem with a Source, which
// reads each item into it, or with a Sink, which writes each item of it.

class Source {
  public:
    explicit Source(ListReader& in) : in_(in) {}

    /// The number in front of a title ends its own line as a rule; then the title is on the next one.
    void title(std::string& text) {
        text = in_.readText();
        if (text.empty()) text = in_.readText();
    }
    void item(Integer& value) { value = in_.readInteger(); }
    void item(Long& value) { value = in_.readLong(); }
    void item(Single& value) { value = in_.readSingle(); }
    void item(Variant& value) { value = in_.readDouble(); }
    void endLine() {}
    /// The plot holds fewer radial coordinates than a deck may have.
    void radialPoints(Integer NR) {
        if (NR > BedProblem::RADIAL_POINTS) throw RunTimeError(Fault::SubscriptOutOfRange, "RC");
    }

    /// What further axles add to ratios from..to of one period and load group.
    void additions(Bounded<Single, 19>& ratios, Bounded<Single, 19>&, int from, int to) {
        for (int j = from; j <= to; ++j)
            ratios[j] = ToSingle(static_cast<Double>(ratios[j]) + static_cast<Double>(in_.readSingle()));
    }

  private:
    ListReader& in_;
};

class Sink {
  public:
    explicit Sink(ListWriter& out) : out_(out) {}

    void title(const std::string& text) {
        std::string quoted = "\"";
        for (const char c : text) quoted += c == '"' ? "''" : std::string(1, c);
        out_.line(quoted + '"');
    }
    void item(Integer value) { out_.number(value); }
    void item(Long value) { put(value); }
    void item(Single value) { put(value); }
    void item(const Variant& value) {
        if (const Single* single = std::get_if<Single>(&value.value()))
            put(*single);
        else
            put(value.number());
    }
    void endLine() { out_.endLine(); }
    void radialPoints(Integer) {}

    void additions(const Bounded<Single, 19>&, const Bounded<Single, 19>& added, int from, int to) {
        for (int j = from; j <= to; ++j) item(added[j]);
    }

  private:
    /// With the fewest digits that read back as the same value.
    template <class Number>
    void put(Number value) {
        if constexpr (std::is_floating_point_v<Number>)
            if (!std::isfinite(value)) throw RunTimeError(Fault::Overflow, "a result is not finite");
        char digits[40];
        const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        out_.text(" " + std::string(digits, end) + " ");
    }
    ListWriter& out_;
};

template <class File, class... Items>
void line(File& file, Items&... items) {
    (file.item(items), ...);
    file.endLine();
}

/// Elements from..to of one or more arrays, side by side.
template <class File, class... Arrays>
void list(File& file, int from, int to, Arrays&... arrays) {
    for (int i = from; i <= to; ++i) (file.item(arrays[i]), ...);
    if (from <= to) file.endLine();
}

template <class File, class Bed>
void loadGroup(File& file, Bed& bed, int g) {
    line(file, bed.LOAD[g]);
    line(file, bed.CR[g], bed.CP[g]);
    if (bed.LOAD[g] != 0) {
        line(file, bed.NPT[g], bed.XW[g], bed.YW[g]);
        list(file, 1, bed.NPT[g], bed.XPT[g], bed.YPT[g]);
    } else {
        line(file, bed.NR[g]);
        file.radialPoints(bed.NR[g]);
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
