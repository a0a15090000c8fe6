#include "plots/bed_file.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include "platform/run_time_error.h"
#include "plots/bed_samples.h"
#include "plots/plot_name.h"
#include "support/temporary_directory.h"

namespace {

std::vector<BedProblem> readAll(const std::string& text) {
    BedReader reader(ListReader::fromText(text));
    std::vector<BedProblem> all;
    while (auto bed = reader.next()) all.push_back(*bed);
    return all;
}

std::string written(const std::vector<BedProblem>& problems) {
    std::ostringstream text;
    ListWriter out(text);
    writeBed(out, problems);
    out.close();
    return text.str();
}

/// A problem of a kind with every item of the file at random, and nothing that the file does not hold.
class AnyProblem {
  public:
    explicit AnyProblem(unsigned seed) : random_(seed) {}

    BedProblem make(Integer MATL, Integer NDAMA) {
        BedProblem bed;
        bed.TITLE = title();
        bed.MATL = MATL, bed.NDAMA = NDAMA;
        bed.NPY = upTo(1, 12), bed.NLG = upTo(1, 12);
        bed.NL = upTo(1, 19), bed.NZ = upTo(0, 19), bed.NUNIT = upTo(0, 1);
        fill(bed.TH, bed.NL - 1);
        fill(bed.PR, bed.NL);
        if (NDAMA == 0) fill(bed.ZC, bed.NZ);
        for (int p = 1; p <= bed.NPY; ++p)
            for (int i = 1; i <= bed.NL; ++i) bed.E[p][i] = static_cast<Long>(random_() >> 1);
        for (int g = 1; g <= bed.NLG; ++g) load(bed, g);
        if (MATL == 2 || MATL == 4) nonlinearBlock(bed);
        if (MATL == 3 || MATL == 4) viscoelasticBlock(bed);
        if (NDAMA != 0) damageBlock(bed);
        return bed;
    }

  private:
    Integer upTo(int least, int most) {
        return static_cast<Integer>(std::uniform_int_distribution<int>(least, most)(random_));
    }
    Single any() {
        const double digits = std::uniform_real_distribution<double>(-10, 10)(random_);
        return static_cast<Single>(digits * std::pow(10, upTo(-30, 30)));
    }
    void fill(auto& array, int count) {
        for (int i = 1; i <= count; ++i) array[i] = any();
    }
    std::string title() {
        const char* const titles[] = {"", "Route 7, mile 12.5", "  blanks in front", "1 2 3"};
        return titles[upTo(0, 3)];
    }
    void load(BedProblem& bed, int g) {
        bed.LOAD[g] = upTo(0, 3);
        bed.CR[g] = any(), bed.CP[g] = any();
        if (bed.LOAD[g] == 0) {
            bed.NR[g] = upTo(0, 10);
            fill(bed.RC[g], bed.NR[g]);
            return;
        }
        bed.NPT[g] = upTo(0, 25);
        bed.XW[g] = any(), bed.YW[g] = any();
        fill(bed.XPT[g], bed.NPT[g]);
        fill(bed.YPT[g], bed.NPT[g]);
    }
    void nonlinearBlock(BedProblem& bed) {
        bed.NOLAY = upTo(1, std::min<int>(bed.NL, 12));
        bed.RCNOL = any(), bed.XCNOL = any(), bed.YCNOL = any(), bed.SLD = any();
        fill(bed.ZCNOL, bed.NOLAY);
        fill(bed.GAM, bed.NL);
        for (int n = 1; n <= bed.NOLAY; ++n) {
            const int i = bed.LAYNO[n] = static_cast<Integer>(bed.NL + 1 - n);
            bed.NCLAY[i] = upTo(0, 2);
            bed.K2[i] = any(), bed.K0[i] = any();
            if (bed.NCLAY[i] == 1) bed.K3[i] = any(), bed.K4[i] = any();
            for (int p = 1; p <= bed.NPY; ++p) {
                bed.K1[p][i] = any();
                if (bed.NCLAY[i] == 1)
                    bed.EMIN[p][i] = any(), bed.EMAX[p][i] = any();
                else
                    bed.PHI[p][i] = any();
            }
        }
    }
    void viscoelasticBlock(BedProblem& bed) {
        bed.DUR = any(), bed.NVL = upTo(1, std::min<int>(bed.NL, 12)), bed.NTYME = upTo(1, 15);
        fill(bed.TYME, bed.NTYME);
        for (int n = 1; n <= bed.NVL; ++n) {
            const int i = bed.LNV[n] = static_cast<Integer>(n);
            bed.BETA[i] = any(), bed.TEMPREF[i] = any();
            for (int t = 1; t <= bed.NTYME; ++t) bed.CREEP[i][t] = Variant(Double{any()} * 1.000000001);
            for (int p = 1; p <= bed.NPY; ++p) bed.TEMP[p][i] = any();
        }
    }
    void damageBlock(BedProblem& bed) {
        bed.NLBT = upTo(0, 9), bed.NLTC = upTo(0, 10);
        bed.NZ = static_cast<Integer>(bed.NLBT + bed.NLTC);
        fill(bed.ZC, bed.NZ);
        for (int p = 1; p <= bed.NPY; ++p)
            for (int g = 1; g <= bed.NLG; ++g) {
                bed.TNLR[g][p] = any();
                fill(bed.DRATIO[p][g], bed.NZ);
            }
        bed.KBT = upTo(0, bed.NLBT), bed.KTC = upTo(0, bed.NLTC);
        if (bed.NLBT != 0) bed.DRBT = any();
        if (bed.NLTC != 0) bed.DRTC = any();
        bed.DESLIFE = any();
    }
    std::mt19937 random_;
};

TEST(BedFile, ReadsBackWhatItWrites) {
    for (unsigned seed = 1; seed <= 25; ++seed)
        for (Integer NDAMA = 0; NDAMA <= 1; ++NDAMA) {
            AnyProblem any(seed);
            std::vector<BedProblem> problems;
            for (Integer MATL = 1; MATL <= 4; ++MATL) problems.push_back(any.make(MATL, NDAMA));
            ASSERT_TRUE(readAll(written(problems)) == problems) << "seed " << seed << " NDAMA " << NDAMA;
        }
}

TEST(BedFile, ReadsItemsWhereverTheyStand) {
    std::string text = nonlinear;
    text.erase(text.find('"'), text.find('\n', text.find('"')) - text.find('"'));
    EXPECT_EQ(readAll(text).at(0).TITLE, "") << "an empty line is an empty title";

    const BedProblem bed = readAll(combined).at(0);
    EXPECT_EQ(bed.K1[2][2], 28000);
    EXPECT_EQ(bed.TEMP[2][1], 12.5F);
    EXPECT_EQ(bed.CREEP[1][9], Variant(9E-5));
    std::string spread = combined;
    for (std::size_t i = spread.find("\n4 0"); i < spread.size(); ++i)
        if (spread[i] == ' ') spread[i] = i % 2 ? ',' : '\n';
    EXPECT_TRUE(readAll(spread).at(0) == bed);
}

TEST(BedFile, FurtherAxlesAddToTheRatios) {
    const BedProblem bed = readAll(damage).at(0);
    EXPECT_EQ(bed.NZ, 2) << "the damage block's own count";
    EXPECT_EQ(bed.ZC[2], 8.0001F);
    EXPECT_FLOAT_EQ(bed.DRATIO[1][1][1], 0.01F) << "a single wheel has no additions";
    EXPECT_FLOAT_EQ(bed.DRATIO[1][2][1], 0.031F);
    EXPECT_FLOAT_EQ(bed.DRATIO[2][2][2], 0.42F);
    EXPECT_EQ(bed.TNLR[2][1], 1000.5F);
    EXPECT_EQ(bed.DESLIFE, 1.465201F);
}

TEST(BedFile, CountsBeyondTheLimitsAreFaults) {
    const std::string head = "1\nT\n";
    const char* const files[] = {
        "1 0 1 1\n20 0 0\n1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1\n.4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 "
        ".4 .4 .4 .4 .4 .4",  // layers
        "1 0 1 1\n1 20 0\n.4\n 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20",
        "1 0 1 1\n1 0 0\n.4\n10000\n0\n6 80\n11\n0 1 2 3 4 5 6 7 8 9 10",  // radial coordinates
        "2 0 1 1\n1 0 0\n.4\n10000\n0\n6 80\n0\n1\n20 0",                  // layer of a nonlinear entry
    };
    for (const char* file : files) {
        try {
            readAll(head + file + "\n");
            ADD_FAILURE() << file;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.fault(), Fault::SubscriptOutOfRange) << file;
        }
    }
}

TEST(BedFile, WhatCannotBeReadBackIsNotWritten) {
    TemporaryDirectory directory;
    directory.write("road.BED", "old");
    BedProblem bed = readAll(viscoelastic).at(0);
    bed.CREEP[1][2] = Variant("none");
    EXPECT_THROW(writeBedFile(directory.path() + "road.BED", {bed}), RunTimeError);
    bed = readAll(linearTandem).at(0);
    bed.PR[1] = std::numeric_limits<Single>::quiet_NaN();
    EXPECT_THROW(writeBedFile(directory.path() + "road.BED", {bed}), RunTimeError);
    EXPECT_EQ(directory.read("road.BED"), "old");

    bed.PR[1] = 0.35F;
    bed.TITLE = "4\" of asphalt, 8\" of base";
    writeBedFile(directory.path() + "road.BED", {bed});
    BedReader reader(directory.path() + "road.bed");
    EXPECT_EQ(reader.next()->TITLE, "4'' of asphalt, 8'' of base");
}

TEST(PlotName, ReplacesTheDeckEndingOnly) {
    EXPECT_EQ(plotFileName("/b/road.DAT", ".BED"), "/b/road.BED");
    EXPECT_EQ(plotFileName("/b/road.dat", ".PAN"), "/b/road.PAN");
    for (const char* other : {"/b/road.Dat", "/b/road", "", "/b/road.TXT"})
        EXPECT_EQ(plotFileName(other, ".BED"), ".BED");
}

}  // namespace
