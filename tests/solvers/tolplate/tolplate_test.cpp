// TOLPLATE as its users meet it: a deck goes in; files, tables and an exit status come out.
#include <functional>
#include <set>

#include "solvers/plate/mesh.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/run_tolplate.h"

namespace {

TEST(Tolplate, SinksAsARigidBodyInBothUnitSystems) {
    // Under pressure and weight that are even everywhere w = (q + GAMA T) / k without stress.
    struct Case {
        Integer NUNIT;
        double QQ, GAMA, SUBMOD, w;
    };
    const std::vector<Case> cases = {
        {0, 2.5, 144, 125, (2.5 + 144 * 10 / 1728.) / 125},  // psi, pcf, pci
        {1, 18, 24, 40, 100 * (18 + 24 * .1) / 40e3},        // kPa, kN/m^3, MN/m^3; T and w in cm
    };
    for (const Case& test : cases) {
        const auto store = slabStore(test.NUNIT);
        SlabSet& s = store->slab[1];
        s.NUDL[1] = 1;
        s.AREA[1][1] = {1.0, 0.0, 240.0, 0.0, 180.0, test.QQ};
        s.LAYER[1].GAMA = static_cast<Single>(test.GAMA);
        s.NWT = 1.0;
        s.SUBMOD = test.SUBMOD;
        const SolvedSlabs solved = solveSlabs(*store);
        ASSERT_EQ(solved.nodes.size(), 20U) << solved.outcome.errors;
        for (const Row& row : solved.nodes) {
            EXPECT_NEAR(number(row, "w"), test.w, 1e-6 * test.w);
            EXPECT_LT(std::abs(number(row, "s1")) + std::abs(number(row, "s2")), 1e-6 * test.QQ);
        }
        EXPECT_NE(solved.text.find("Largest principal stress 0 "), std::string::npos)
            << "no round-off in the text";
    }
}

TEST(Tolplate, TiltsAStiffSlabTowardsTheForce) {
    // w = P / (k A) (1 + 12 ex x / a^2 + 12 ey y / b^2) from the middle; a moment is a force on an arm.
    const double P = 10000, k = 100, a = 240, b = 180;
    for (const bool asMoments : {false, true}) {
        const auto store = slabStore();
        SlabSet& s = store->slab[1];
        s.LAYER[1].T = 2000;
        s.SUBMOD = k;
        s.NCNF = 0;
        double ex = 0, ey = 0;
        if (asMoments) {  // FMX about y pushes the right side down, FMY about x the lower one
            s.NNMX = s.NNMY = 1;
            s.MOMENTX[1] = {7, P * 40};
            s.MOMENTY[1] = {14, P * 30};
            addForce(s, 9, P / 4), addForce(s, 10, P / 4), addForce(s, 11, P / 4), addForce(s, 12, P / 4);
            ex = 40, ey = -30;
        } else {
            addForce(s, 16, P);  // x = 180, y = 180
            ex = 60, ey = 90;
        }
        const SolvedSlabs solved = solveSlabs(*store);
        ASSERT_FALSE(solved.nodes.empty()) << solved.outcome.errors;
        for (const Row& row : solved.nodes) {
            const double x = number(row, "x") - a / 2, y = number(row, "y") - b / 2;
            const double w = P / (k * a * b) * (1 + 12 * ex * x / (a * a) + 12 * ey * y / (b * b));
            EXPECT_NEAR(number(row, "w"), w, 1e-3 * P / (k * a * b)) << row.at("node") << asMoments;
        }
        const PanProblem& pan = solved.plots[0].problem;
        EXPECT_EQ(pan.NSTRESS, asMoments ? PanProblem::MomentTable : PanProblem::StressTable);
        const Row& middle = solved.nodes[9];
        // The contour page says "- sign for tension at bottom" of moments, too.
        const double plotted = asMoments ? -number(middle, "mx") : number(middle, "sx");
        EXPECT_NEAR(pan.SX[10][1], plotted, 1e-5 * std::abs(plotted));
    }
}

TEST(Tolplate, CurlsWithFullRestraintInTheMiddleOfALargeSlab) {
    // Bradbury: E CT TEMP / (2 (1 - PR)); a warmer bottom is in compression.
    for (const Integer NUNIT : {Integer{0}, Integer{1}}) {
        const auto store = slabStore(NUNIT);
        SlabSet& s = store->slab[1];
        setGrid(s.SLAB[1], 19, 19, NUNIT == 0 ? 34 : 86, NUNIT == 0 ? 34 : 86);
        s.LAYER[1].T = NUNIT == 0 ? 8 : 20;
        s.SUBMOD = NUNIT == 0 ? 300.0 : 80.0;
        s.NTEMP = 1.0;
        s.TEMP = 20.0;
        const SolvedSlabs solved = solveSlabs(*store);
        ASSERT_EQ(solved.nodes.size(), 361U) << solved.outcome.errors;
        const double stress = s.LAYER[1].YM * s.CT.number() * 20 / (2 * (1 - s.LAYER[1].PR));
        EXPECT_NEAR(number(solved.nodes[180], "sx"), stress, .02 * stress);
        EXPECT_NEAR(number(solved.nodes[180], "sy"), stress, .02 * stress);
    }
}

TEST(Tolplate, HandsLoadOverAJoint) {
    const auto store = twoSlabs();
    SlabSet& s = store->slab[1];
    addForce(s, 18, 9000);  // right side of slab 1
    const SolvedSlabs solved = solveSlabs(*store);
    ASSERT_EQ(solved.joints.size(), 4U) << solved.outcome.errors;
    double shear = 0, carried = 0, total = 0, bars = 0;
    for (const Row& row : solved.joints) {
        shear += number(row, "shear");
        bars += number(row, "bars");
        EXPECT_EQ(number(row, "node_b"), number(row, "node_a") + 4);
    }
    for (const Row& row : solved.nodes) {
        total += number(row, "reaction");
        if (row.at("slab") == "2") carried += number(row, "reaction");
    }
    EXPECT_NEAR(total, 9000, 1e-5);
    EXPECT_NEAR(carried, shear, 1e-5) << "slab 2 stands on its ground by the joint alone";
    EXPECT_GT(shear, 2000);
    EXPECT_NEAR(bars, 180 / 12., 1e-9);

    const PanRun& plot = solved.plots.at(0);
    EXPECT_EQ(plot.problem.LN, 1);
    EXPECT_EQ(plot.problem.NX[2], 5);
    EXPECT_EQ(plot.problem.JONO[2][1], 1);
}

TEST(Tolplate, PlotsWhatTheTableSays) {
    // Two layers, the load on slab 2, any NUNIT that is not 0.
    const auto store = twoSlabs();
    SlabSet& s = store->slab[1];
    s.NLAYER = 2;
    s.LAYER[2] = {6, .2F, 2e6F};
    s.NUNIT = 7;
    s.SUBMOD = 54.0;
    s.JOINT[1].SCKV = 400.0;
    s.NUDL[1] = 1;
    s.AREA[1][1] = {2.0, 0.0, 40.0, 0.0, 40.0, 500.0};
    const SolvedSlabs solved = solveSlabs(*store);
    ASSERT_EQ(solved.nodes.size(), 80U) << solved.outcome.errors;
    const PanProblem& pan = solved.plots.at(0).problem;
    EXPECT_EQ(pan.NUNIT, 1);
    EXPECT_EQ(pan.SUBMOD, 54000.F);
    EXPECT_EQ(pan.LN, 2);
    ASSERT_EQ(pan.NNP, 20);
    for (int k = 1; k <= 2; ++k) {
        const PanResults::Layer& most = solved.plots[0].results[1][1].layers[k];
        EXPECT_EQ(most.NOFF, 20);
        double largest = 0, least = 0;
        for (int n = 1; n <= 20; ++n) {
            const Row& row = solved.nodes[static_cast<std::size_t>(2 * (19 + n) + k - 1)];
            ASSERT_EQ(number(row, "node"), 20 + n);
            ASSERT_EQ(number(row, "layer"), k);
            EXPECT_NEAR(pan.SX[n][k], number(row, "sx"), 1e-5 * std::abs(most.SMAX));
            EXPECT_NEAR(pan.SY[n][k], number(row, "sy"), 1e-5 * std::abs(most.SMAX));
            for (const char* s12 : {"s1", "s2"})
                if (std::abs(number(row, s12)) > std::abs(largest)) largest = number(row, s12);
            least = std::min(least, number(row, "sx"));
        }
        EXPECT_NEAR(most.SMAX, largest, 1e-5 * std::abs(largest));
        EXPECT_NEAR(most.SMIX, least, 1e-5 * std::abs(largest));
        EXPECT_NEAR(pan.SX[most.NMIX - 20][k], most.SMIX, 1e-5 * std::abs(largest));
    }
}

TEST(Tolplate, TakesTheFirstNodeWhereASignIsMissing) {
    const auto store = slabStore();  // no load at all: nothing but zeros
    const SolvedSlabs solved = solveSlabs(*store);
    ASSERT_EQ(solved.plots.size(), 1U) << solved.outcome.errors;
    const PanResults::Layer& none = solved.plots[0].results[1][1].layers[1];
    EXPECT_EQ(std::set<int>({none.NMIX, none.NPLX, none.NMIY, none.NPLY}), std::set<int>{1});
    EXPECT_EQ(none.SMAX, 0);
}

TEST(Tolplate, ReportsThePrintoutNodesOnly) {
    const auto store = slabStore();
    SlabSet& s = store->slab[1];
    addForce(s, 10, 9000);
    s.NPRINT = 2;
    s.NP[1] = 20;
    s.NP[2] = 19;
    const SolvedSlabs few = solveSlabs(*store);
    ASSERT_EQ(few.plots.size(), 1U) << few.outcome.errors;
    EXPECT_EQ(few.plots[0].problem.NSTRESS, PanProblem::NoTable);
    EXPECT_GE(few.plots[0].results[1][1].layers[1].NMAX, 19);
    s.MDPO = 1;
    EXPECT_GT(solveSlabs(*store).text.size(), few.text.size() + 1000) << "all nodes with MDPO";
}

TEST(Tolplate, SumsDamageOverPeriodsAndGroups) {
    auto store = std::make_unique<Store>();
    ASSERT_EQ(readSlabDeck(TOLMARK_SOURCE_DIR "/examples/PAN4.DAT", *store).outcome,
              DeckReadResult::Outcome::Complete);
    SlabSet& s = store->slab[1];
    const SolvedSlabs solved = solveSlabs(*store);
    const PanRun& plot = solved.plots.at(0);
    // A single axle, by hand: N = 10^(F1 - F2 SR).
    const Row edge = rowsWhere(solved.nodes, {{"period", 2}, {"group", 1}, {"node", 1}}).at(0);
    const double ratio = -number(edge, "sx") / s.LAYER[1].PMR;
    EXPECT_NEAR(plot.results[2][1].CIDX[1], 20000 / std::pow(10, 17.61 * (1 - ratio)), 1e-6);
    double sum = 0;
    for (int p = 1; p <= 2; ++p)
        for (int g = 1; g <= 3; ++g) sum += plot.results[p][g].CIDX[1];
    EXPECT_NEAR(plot.problem.DESLIFE, 1 / sum, 1e-5 / sum);
    EXPECT_EQ(plot.problem.TNLR[3][1], 2000);

    s.NDAMA = 1;
    s.LAYER[1].PMR = 5000;  // no ratio reaches .45
    EXPECT_EQ(solveSlabs(*store).plots.at(0).problem.DESLIFE, 9999.99F);
}

TEST(Tolplate, ContinuesFromTheDataSetBefore) {
    auto store = std::make_unique<Store>();
    ASSERT_EQ(readSlabDeck(TOLMARK_SOURCE_DIR "/examples/PAN2.DAT", *store).outcome,
              DeckReadResult::Outcome::Complete);
    SlabSet& s = store->slab[2];
    const auto corner = [&] { return number(rowsWhere(solveSlabs(*store).nodes, {{"set", 2}}).back(), "w"); };
    const double onGaps = corner();
    s.INPUT = 0.0;
    const double fresh = corner();
    EXPECT_GT(onGaps, 1.05 * fresh) << "the corner had lifted before the load came";
}

TEST(Tolplate, TellsWhatPassedItsBounds) {
    const auto store = slabStore();
    SlabSet& s = store->slab[1];
    addForce(s, 1, 20000);
    s.FMAX = 0.01;
    const SolvedSlabs deflected = solveSlabs(*store);
    EXPECT_EQ(deflected.outcome.status, SOLVED);
    EXPECT_NE(deflected.text.find("at node NNCK = 1 passes FMAX = 0.01"), std::string::npos);
    s.FMAX = 0.0;
    s.NCYCLE = 2.0;
    const std::string settled = solveSlabs(*store).text;
    EXPECT_NE(settled.find("NCYCLE = 2 cycles were used up"), std::string::npos);
    EXPECT_EQ(settled.find("***"), std::string::npos) << "the check has brought it to an end";
    s.NCYCLE = 10.0;
    s.NWT = 1.0;
    EXPECT_EQ(solveSlabs(*store).text.find("***"), std::string::npos);
    s.LAYER[1].GAMA = 0;
    EXPECT_NE(solveSlabs(*store).text.find("*** NWT is 1, but GAMA of slab layer 1 is 0"), std::string::npos);
    store->slab[2] = s;
    store->SlabNPROB = 2.0;
    store->slab[2].INPUT = 1.0;
    EXPECT_NE(solveSlabs(*store).text.find("*** NWT is 1 with INPUT = 1: the weight acts once more"),
              std::string::npos);
}

TEST(Tolplate, RefusesBadDecksWithASentence) {
    struct Case {
        std::function<void(SlabSet&)> spoil;
        std::string sentence;
    };
    const std::vector<Case> cases = {
        {[](SlabSet& s) { s.NDAMA = -1; }, "NDAMA is -1, card (3), data set 1: NDAMA must be 0, 1 or 2"},
        {[](SlabSet& s) { s.NDAMA = 1; },
         "NPRINT is 0, card (6), data set 1: a damage analysis needs 3 nodes"},
        {[](SlabSet& s) { s.SLAB[1].X[3] = s.SLAB[1].X[2]; }, "X(1, 3) is 60, card (9), data set 1"},
        {[](SlabSet& s) { s.FSAF[1] = 0; }, "FSAF(1) is 0, card (22), data set 1: the factor must be"},
        {[](SlabSet& s) { s.NOTCON = 1.0, s.NODNC[1] = 21; },
         "NODNC(1) is 21, card (17), data set 1: there is no such node"},
        {[](SlabSet& s) {
             s.NAT1 = 1, s.THICK1[1] = {0.0, 9.0};
         },
         "NT1(1) is 0, card (11)"},
        {[](SlabSet& s) { s.NUDL[1] = 1, s.AREA[1][1] = {1.0, 0.0, 250.0, 0.0, 9.0, 9.0}; },
         "XL2, card (15), data set 1, slab 1: Load group 1, area 1 must lie on slab 1, which goes from 0 to "
         "240; "
         "XL2 is 250."},
        {[](SlabSet& s) {
             s.NGAP = 1.0, s.GAP[1] = {1.0, .1};
         },
         "NGAP is 1, card (6), data set 1: it must be 0 when"},
        {[](SlabSet& s) { s.NPY = 2, s.FSAF[2] = 1; },
         "NCNF is 1, card (13), data set 1: it must be 0 unless"},
        {[](SlabSet& s) { s.INPUT = 1.0; }, "INPUT is 1, card (6), data set 1: there is no data set before"},
        {[](SlabSet& s) { s.NSLAB = 2, s.SLAB[2] = s.SLAB[1], s.NJOINT = 1, s.SLAB[1].JONO2 = 1; },
         "JONO, card (5), data set 1: Joint 1 must lie"},
        {[](SlabSet& s) {
             s.NOTCON = 20.0;
             for (int n = 1; n <= 20; ++n) s.NODNC[n] = static_cast<Integer>(n);
         },
         "the foundation cannot hold the slabs"},
        {[](SlabSet& s) { s.NFOUND = 2, s.NL = 0.0; }, "NL is 0, card (30)"},
        {[](SlabSet& s) { s.LAYER[1].PR = .6F; }, "PR(1) is .6, card (10)"},
    };
    for (const Case& test : cases) {
        const auto store = slabStore();
        addForce(store->slab[1], 1, 100);
        test.spoil(store->slab[1]);
        const TemporaryDirectory folder;
        saveSlabDeck(*store, folder.path() + "slab.DAT");
        folder.write("slab.pan", "of another deck");
        folder.write("SLAB.TXT", "of another deck");
        const Outcome done = run({folder.path() + "slab"});
        EXPECT_EQ(done.status, BAD_DECK);
        EXPECT_NE(done.errors.find(test.sentence), std::string::npos) << done.errors << test.sentence;
        EXPECT_NE(folder.read("SLAB.TXT").find("Not solved: "), std::string::npos);
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "slab.pan")) << "results of another deck stay";
    }
}

TEST(Tolplate, RefusesADamageAnalysisOfOtherPoints) {
    struct Case {
        std::function<void(SlabSet&)> spoil;
        std::string sentence;
    };
    const std::vector<Case> cases = {
        {[](SlabSet& s) { s.NP[1] = 10; }, "NP(1) is 10, card (18)"},  // not on the axis
        {[](SlabSet& s) { s.NP[2] = 20; }, "NP(2) is 20, card (18)"},  // not on the edge
        {[](SlabSet& s) { s.NP[3] = 10; }, "NP(3) is 10, card (18)"},  // not outward
        {[](SlabSet& s) { s.NSY = 8; }, "NSY is 8, card (6)"},
        {[](SlabSet& s) { s.NSX = 1, s.NODSX[1] = 1; }, "NSX is 1, card (6)"},
        {[](SlabSet& s) { s.NSLAB = 2, s.SLAB[2] = s.SLAB[1]; }, "NSLAB is 2, card (4)"},
    };
    for (const Case& test : cases) {
        auto store = std::make_unique<Store>();
        readSlabDeck(TOLMARK_SOURCE_DIR "/examples/PAN4.DAT", *store);
        test.spoil(store->slab[1]);
        EXPECT_NE(solveSlabs(*store).outcome.errors.find(test.sentence), std::string::npos) << test.sentence;
    }
}

TEST(Tolplate, ContinuesWithTheSameSlabsOnly) {
    auto store = std::make_unique<Store>();
    readSlabDeck(TOLMARK_SOURCE_DIR "/examples/PAN2.DAT", *store);
    const SlabSet good = store->slab[2];
    const auto outcome = [&] { return solveSlabs(*store).outcome; };
    store->slab[2].SUBMOD = 300.0;
    EXPECT_EQ(outcome().status, SOLVED) << "moduli may differ";
    store->slab[2].LAYER[1].T = 9;
    EXPECT_NE(outcome().errors.find("T(1) is 9, card (10), data set 2: it must be 8"), std::string::npos);
    store->slab[2] = good;
    store->slab[2].NSX = 0;
    EXPECT_NE(outcome().errors.find("NSX is 0, card (6), data set 2: it must be 9"), std::string::npos);
    store->slab[2] = good;
    store->slab[2].NCYCLE = 1.0;
    EXPECT_NE(outcome().errors.find("NCYCLE is 1, card (6), data set 2"), std::string::npos);
}

TEST(Tolplate, RefusesWhatIsNoSlabDeck) {
    const TemporaryDirectory folder;
    folder.write("road.DAT", example("BED1.DAT"));
    EXPECT_EQ(run({folder.path() + "road"}).status, BAD_DECK);
    EXPECT_EQ(run({folder.path() + "nothing"}).status, BAD_DECK);
    const std::string deck = example("PAN3.DAT");
    for (std::size_t length = 0; length < deck.size(); length += 97) {
        folder.write("road.DAT", deck.substr(0, length));
        const Outcome done = run({folder.path() + "road"});
        EXPECT_EQ(done.status, BAD_DECK) << length;
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.PAN"));
    }
}

TEST(Tolplate, SendsLargeDecksToTolgiant) {
    const auto store = slabStore();
    addForce(store->slab[1], 1, 100);
    const SlabSolver small{"TOLPLATE", 1e5};
    const SolvedSlabs refused = solveSlabs(*store, small);
    EXPECT_EQ(refused.outcome.status, BAD_DECK);
    EXPECT_NE(refused.outcome.errors.find("solve the deck with TOLGIANT"), std::string::npos);
    EXPECT_EQ(solveSlabs(*store, TOLGIANT).outcome.status, SOLVED);

    // All that the input tables let pass fits: six slabs of 15 by 15 nodes, every period and group.
    SlabSet& s = store->slab[1];
    s.NFOUND = 1;
    s.YMS = 8000.0;
    s.PRS = .4;
    s.NSLAB = 6;
    s.NPY = s.NLG = 12;
    for (int n = 1; n <= 6; ++n) setGrid(s.SLAB[n], 15, 15, 12, 12);
    EXPECT_LT(plate::bytesNeeded(plateProblem(s)), TOLPLATE.ceiling);
}

TEST(Tolplate, NotesWhatThePlotCannotShow) {
    const auto store = slabStore();
    SlabSet& s = store->slab[1];
    setGrid(s.SLAB[1], 25, 25, 12, 12);
    s.NUDL[1] = 21;
    for (int i = 1; i <= 21; ++i) s.AREA[1][i] = {1.0, i * 10.0, i * 10.0 + 5, 0.0, 12.0, 80.0};
    const TemporaryDirectory folder;
    saveSlabDeck(*store, folder.path() + "slab.DAT");
    ASSERT_EQ(run({folder.path() + "slab", "--quiet"}).status, SOLVED);
    const std::string text = folder.read("slab.TXT");
    EXPECT_NE(text.find("load group 1 has 21 loaded areas, the plot takes 20"), std::string::npos);
    EXPECT_NE(text.find("slab 1 has 625 nodes, the plot takes 420"), std::string::npos);
}

TEST(Tolplate, GivesTheSameBytesAgain) {
    const TemporaryDirectory folder;
    std::set<std::string> results;
    for (const SlabSolver& solver : {TOLPLATE, TOLPLATE, TOLGIANT}) {
        folder.write("slab.DAT", example("PAN2.DAT"));
        ASSERT_EQ(run({folder.path() + "slab", "--csv", folder.path() + "n.csv"}, solver).status, SOLVED);
        const std::string text = folder.read("slab.TXT");
        results.insert(text.substr(text.find(':')) + folder.read("slab.PAN") + folder.read("n.csv"));
    }
    EXPECT_EQ(results.size(), 1U);
}

}  // namespace
