#include "plots/bed_file.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "plots/bed_samples.h"
#include "plots/plot_name.h"
#include "support/faults.h"
#include "support/temporary_directory.h"
#include "support/text_change.h"

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

TEST(BedFile, ReadsBackWhatItWrites) {
    std::vector<BedProblem> all;
    for (const char* sample : {linearTandem, nonlinear, viscoelastic, combined, damage}) {
        all.push_back(readAll(sample).at(0));
        all.back().CR[1] = std::nextafter(all.back().CR[1], 0.0F);  // needs all nine digits
        all.back().E[1][2] = std::numeric_limits<Long>::max();
        all.back().PR[2] = -1.25E-36F;
    }
    all[2].CREEP[1][1] = Variant(1.0 / 3);
    all[1].TITLE = "";
    all[2].TITLE = "Route 7, mile 12.5";
    EXPECT_TRUE(readAll(written(all)) == all);

    const std::string untitled = replaced(nonlinear, "\"Nonlinear, single wheel\"", "");
    EXPECT_EQ(readAll(untitled).at(0).TITLE, "") << "an empty line is an empty title";
}

TEST(BedFile, FurtherAxlesAddToTheRatios) {
    const BedProblem bed = readAll(damage).at(0);
    EXPECT_EQ(bed.NZ, 2) << "the damage block's own count";
    EXPECT_FLOAT_EQ(bed.DRATIO[1][1][1], 0.01F) << "a single wheel has no additions";
    EXPECT_FLOAT_EQ(bed.DRATIO[1][2][1], 0.031F);
    EXPECT_FLOAT_EQ(bed.DRATIO[2][2][2], 0.42F);
    EXPECT_EQ(bed.TNLR[2][1], 1000.5F);
    EXPECT_EQ(bed.DESLIFE, 1.465201F);

    BedProblem apart = bed;
    apart.DRATIO[1][2][1] = 0.03F, apart.ADDED[1][2][1] = 0.001F;
    EXPECT_TRUE(readAll(written({apart})).at(0) == bed);
    EXPECT_NE(written({apart}), written({bed}));
    const char* const dual = "1\nT\n1 1 1 1\n1 0 0\n.4 9000 1 5 80 0 0 13 1 0 730 1 8 .25 1 0 .5 2\n";
    EXPECT_EQ(readAll(dual).at(0).DESLIFE, 2) << "dual wheels are one axle";
}

TEST(BedFile, CountsBeyondTheLimitsAreFaults) {
    std::string many;
    for (int i = 0; i < 40; ++i) many += " 1";
    const std::pair<const char*, const char*> files[] = {
        {"layers", "1 0 1 1\n20 0 0\n"},
        {"depths", "1 0 1 1\n1 20 0\n"},
        {"radial coordinates", "1 0 1 1\n1 0 0 .4 10000 0 6 80 11"},
        {"nonlinear layers", "2 0 1 1\n1 0 0 .4 10000 0 6 80 0 1 20 0"}};
    for (const auto& [what, head] : files)
        EXPECT_EQ(faultOf([&] { readAll("1\nT\n" + (head + many)); }), Fault::SubscriptOutOfRange) << what;
}

TEST(BedFile, WhatCannotBeReadBackIsNotWritten) {
    const TemporaryDirectory directory;
    const std::string file = directory.path() + "road.BED";
    directory.write("road.BED", "old");
    BedProblem creep = readAll(viscoelastic).at(0), ratio = readAll(linearTandem).at(0);
    creep.CREEP[1][2] = Variant("none");
    ratio.PR[1] = std::numeric_limits<Single>::quiet_NaN();
    for (const BedProblem& bed : {creep, ratio}) EXPECT_THROW(writeBedFile(file, {bed}), RunTimeError);
    EXPECT_EQ(directory.read("road.BED"), "old");

    ratio.PR[1] = 0.35F;
    ratio.TITLE = "4\" of asphalt, 8\" of base";
    writeBedFile(file, {ratio});
    EXPECT_EQ(BedReader(directory.path() + "road.bed").next()->TITLE, "4'' of asphalt, 8'' of base");
}

TEST(PlotName, ReplacesTheDeckEndingOnly) {
    EXPECT_EQ(plotFileName("/b/road.DAT", ".BED"), "/b/road.BED");
    EXPECT_EQ(plotFileName("/b/road.dat", ".PAN"), "/b/road.PAN");
    for (const char* other : {"/b/road.Dat", "/b/road", "", "/b/road.TXT"})
        EXPECT_EQ(plotFileName(other, ".BED"), ".BED");
}

}  // namespace
