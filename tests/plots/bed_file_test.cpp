#include "plots/bed_file.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <sstream>

#include "plots/bed_samples.h"
#include "plots/plot_name.h"
#include "support/faults.h"
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

/// The sample with other values in the place of every number that is written with a point or an exponent.
std::string withOtherValues(const std::string& sample, std::mt19937& random) {
    std::istringstream in(sample);
    std::string text, line;
    while (std::getline(in, line)) {
        std::istringstream items(line);
        std::string item;
        while (!line.starts_with('"') && items >> item) {
            const double digits = std::uniform_real_distribution<double>(-10, 10)(random);
            const int power = std::uniform_int_distribution<int>(-36, 36)(random);
            const bool whole = item.find_first_of(".E") == std::string::npos;
            text += (whole ? item : std::to_string(digits) + "E" + std::to_string(power)) + " ";
        }
        text += (line.starts_with('"') ? line : "") + "\n";
    }
    return text;
}

TEST(BedFile, ReadsBackWhatItWrites) {
    std::mt19937 random(20240607);
    std::vector<BedProblem> all;
    for (int run = 0; run < 40; ++run)
        for (const char* sample : {linearTandem, linearTandemSi, nonlinear, viscoelastic, combined, damage}) {
            std::vector<BedProblem> problems = readAll(withOtherValues(sample, random));
            problems[0].CR[1] = std::nextafter(problems[0].CR[1], 0.0F);  // needs all nine digits
            ASSERT_TRUE(readAll(written(problems)) == problems) << withOtherValues(sample, random);
            all.push_back(problems[0]);
        }
    all[1].TITLE = "";
    all[2].TITLE = "Route 7, mile 12.5";
    EXPECT_TRUE(readAll(written(all)) == all) << "many problems in one file";
}

TEST(BedFile, ReadsItemsWhereverTheyStand) {
    std::string text = nonlinear;
    text.erase(text.find('"'), text.find('\n', text.find('"')) - text.find('"'));
    EXPECT_EQ(readAll(text).at(0).TITLE, "") << "an empty line is an empty title";

    const BedProblem bed = readAll(combined).at(0);
    EXPECT_EQ(bed.K1[2][2], 28000);
    EXPECT_EQ(bed.TEMP[2][1], 12.5F);
    std::string spread = combined;
    for (std::size_t i = spread.find("\n4 0"); i < spread.size(); ++i)
        if (spread[i] == ' ') spread[i] = i % 2 ? ',' : '\n';
    EXPECT_TRUE(readAll(spread).at(0) == bed);
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
    const std::string head = "1\nT\n";
    const char* const files[] = {
        "1 0 1 1\n20 0 0\n1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1\n.4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 .4 "
        ".4 .4 .4 .4 .4 .4",  // layers
        "1 0 1 1\n1 20 0\n.4\n 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20",
        "1 0 1 1\n1 0 0\n.4\n10000\n0\n6 80\n11\n0 1 2 3 4 5 6 7 8 9 10",  // radial coordinates
        "2 0 1 1\n1 0 0\n.4\n10000\n0\n6 80\n0\n1\n20 0",                  // layer of a nonlinear entry
    };
    for (const char* file : files)
        EXPECT_EQ(faultOf([&] { readAll(head + file + "\n"); }), Fault::SubscriptOutOfRange) << file;
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
