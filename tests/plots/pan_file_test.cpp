#include "plots/pan_file.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <sstream>

#include "plots/pan_samples.h"
#include "support/temporary_directory.h"
#include "support/text_change.h"

namespace {

std::vector<PanRun> readAll(PanReader& reader) {
    std::vector<PanRun> all;
    while (auto problem = reader.next()) {
        PanRun run{*problem, {}};
        PanProblem& pan = run.problem;
        reader.readLoads(pan);
        for (int p = 1; p <= pan.NPY; ++p)
            for (int g = 1; g <= pan.NLG; ++g) run.results[p][g] = reader.readResults(pan);
        if (pan.NDAMA > 0) reader.readDesignLife(pan);
        all.push_back(run);
    }
    return all;
}

std::vector<PanRun> readAll(const std::string& text) {
    PanReader reader(ListReader::fromText(text));
    return readAll(reader);
}

std::string written(const std::vector<PanRun>& runs) {
    std::ostringstream text;
    ListWriter out(text);
    writePan(out, runs);
    out.close();
    return text.str();
}

TEST(PanFile, ItemsStandWhereTheyBelong) {
    const PanRun one = readAll(oneSlab).at(0);
    EXPECT_EQ(one.problem.areas[1][2].QQ, 50) << "English pressures stay";
    EXPECT_EQ(one.problem.SX[1][2], -3);
    EXPECT_EQ(one.problem.SY[12][2], 48);
    EXPECT_EQ(one.results[1][1].layers[2].NMAX, 6);
    EXPECT_EQ(one.results[1][1].layers[2].SPLY, 10);

    const PanRun two = readAll(twoSlabsDamage).at(0);
    EXPECT_EQ(two.problem.areas[1][1].QQ, 0.05F) << "kPa on square centimetres as kN";
    EXPECT_EQ(two.problem.E[2], 100000.5F);
    const std::string otherUnit = replaced(twoSlabsDamage, "1 1 0 1\n", "1 1 0 2\n");
    EXPECT_EQ(readAll(otherUnit).at(0).problem.areas[1][1].QQ, 500);
}

TEST(PanFile, ReadsBackWhatItWrites) {
    std::vector<PanRun> runs = readAll(oneSlab);
    runs.push_back(readAll(twoSlabsDamage).at(0));
    runs[0].problem.SX[7][1] = std::nextafter(.1F, 0.0F);  // needs all nine digits
    runs[0].problem.NN[1] = Variant(1000);
    runs[0].problem.TITLE = "";
    runs[1].problem.areas[1][1].QQ = 500;  // as the solver has it
    runs.push_back(runs[0]);
    PanProblem& raft = runs[2].problem;
    raft.NFOUND = 1, raft.YMS = 5000, raft.PRS = .4F, raft.SUBMOD = 0;
    raft.NNMX = 2, raft.NNMY = 1, raft.NSTRESS = PanProblem::MomentTable;
    raft.NNX[1] = 3, raft.FMX[1] = -1.5, raft.NNX[2] = 4, raft.FMX[2] = 2.5F;
    raft.NNY[1] = 12, raft.FMY[1] = 1E+20;

    const std::string text = written(runs);
    const std::vector<PanRun> back = readAll(text);
    ASSERT_EQ(back.size(), runs.size());
    EXPECT_NE(text.find(" 1000 "), std::string::npos) << "whole numbers as plain digits";
    runs[1].problem.areas[1][1].QQ = 0.05F;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        EXPECT_TRUE(back[i].problem == runs[i].problem) << i;
        EXPECT_TRUE(back[i].results == runs[i].results) << i;
    }
}

TEST(PanFile, ListsBeyondThePlotsAreWrittenButNotRead) {
    std::vector<PanRun> runs = readAll(oneSlab);
    runs[0].problem.NUDL[1] = 21;
    EXPECT_THROW(readAll(written(runs)), RunTimeError);
    runs[0].problem.NUDL[1] = 20;
    runs[0].problem.NNP = 420;
    EXPECT_EQ(readAll(written(runs)).at(0).problem.NNP, 420);
    runs[0].problem.NNP = 421;
    EXPECT_THROW(readAll(written(runs)), RunTimeError);
    runs[0].problem.NNP = 626;
    EXPECT_THROW(written(runs), RunTimeError);
}

TEST(PanFile, WhatIsNotANumberIsNotWritten) {
    const TemporaryDirectory directory;
    const std::string file = directory.path() + "slab.PAN";
    std::vector<PanRun> runs = readAll(oneSlab);
    writePanFile(file, runs);
    runs[0].results[1][1].layers[1].SMAX = std::numeric_limits<Single>::quiet_NaN();
    EXPECT_THROW(writePanFile(file, runs), RunTimeError);
    PanReader reader(directory.path() + "slab.pan");
    EXPECT_EQ(readAll(reader).at(0).results[1][1].layers[1].SMAX, -210.1234F) << "the old file stays";
}

}  // namespace
