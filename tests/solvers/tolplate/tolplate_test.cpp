// TOLPLATE as its users meet it: a deck goes in; files, tables and an exit status come out.
#include <set>

#include "solvers/plate/mesh.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/run_tolplate.h"

namespace {

TEST(Tolplate, SinksAsARigidBodyInBothUnitSystems) {
    // Under pressure and weight that are even everywhere w = (q + GAMA T) / k without stress.
    const struct {
        Integer NUNIT;
        double QQ, SUBMOD;
        Single GAMA1, GAMA2;
        double w;
    } cases[] = {
        {0, 2.5, 125, 144, 120, (2.5 + (144 * 10 + 120 * 5) / 1728.) / 125},  // psi, pci, pcf
        {1, 18, 40, 24, 20, 100 * (18 + 24 * .1 + 20 * .05) / 40e3},  // kPa, MN/m^3, kN/m^3; T and w in cm
    };
    for (const auto& [NUNIT, QQ, SUBMOD, GAMA1, GAMA2, w] : cases) {
        const auto store = slabStore(NUNIT);
        SlabSet& s = store->slab[1];
        s.NUDL[1] = 1;
        s.AREA[1][1] = {1.0, 0.0, 240.0, 0.0, 180.0, QQ};
        s.NLAYER = 2;
        s.LAYER[1].GAMA = GAMA1;
        s.LAYER[2] = {5, .15F, 4e6F, GAMA2};
        s.NWT = 1.0;
        s.SUBMOD = 1.0;
        s.NAS = 20.0;
        for (int n = 1; n <= 20; ++n) s.SUBGRADE[n] = {static_cast<double>(n), SUBMOD};
        const SolvedSlabs solved = solveSlabs(*store);
        ASSERT_EQ(solved.nodes.size(), 40U) << solved.outcome.errors;
        for (const Row& row : solved.nodes) {
            EXPECT_NEAR(number(row, "w"), w, 1e-6 * w);
            EXPECT_LT(std::abs(number(row, "s1")) + std::abs(number(row, "s2")), 1e-6 * QQ);
        }
        EXPECT_THAT(solved.text, HasSubstr("Largest principal stress 0 ")) << "no round-off in the text";
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
            const double mean = P / (k * a * b), byX = mean * 12 * ex / (a * a),
                         byY = mean * 12 * ey / (b * b);
            EXPECT_NEAR(number(row, "w"), mean + byX * x + byY * y, 1e-3 * mean)
                << row.at("node") << asMoments;
            EXPECT_NEAR(number(row, "ry"), byX, 1e-3 * std::abs(byX));
            EXPECT_NEAR(number(row, "rx"), -byY, 1e-3 * std::abs(byY));
        }
        const PanProblem& pan = solved.plots[0].problem;
        EXPECT_EQ(pan.NSTRESS, asMoments ? PanProblem::MomentTable : PanProblem::StressTable);
        const Row& middle = solved.nodes[9];
        // The contour page says "- sign for tension at bottom" of moments, too.
        const double plotted = asMoments ? -number(middle, "mx") : number(middle, "sx");
        EXPECT_NEAR(pan.SX[10][1], plotted, 1e-5 * std::abs(plotted));
    }
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
    EXPECT_EQ(std::tuple(pan.NUNIT, pan.SUBMOD, pan.LN), std::tuple(1, 54000.F, 2));
    EXPECT_EQ(std::tuple(pan.NX[2], pan.JONO[2][1], pan.JONO[1][2]), std::tuple(5, 1, 1));
    ASSERT_EQ(pan.NNP, 20);
    for (int k = 1; k <= 2; ++k) {
        const PanResults::Layer& most = solved.plots[0].results[1][1].layers[k];
        EXPECT_EQ(most.NOFF, 20);
        double largest = 0, leastX = 0, leastY = 0;
        for (int n = 1; n <= 20; ++n) {
            const Row& row = solved.nodes[static_cast<std::size_t>(2 * (19 + n) + k - 1)];
            ASSERT_EQ(number(row, "node"), 20 + n);
            ASSERT_EQ(number(row, "layer"), k);
            EXPECT_NEAR(pan.SX[n][k], number(row, "sx"), 1e-5 * std::abs(most.SMAX));
            EXPECT_NEAR(pan.SY[n][k], number(row, "sy"), 1e-5 * std::abs(most.SMAX));
            for (const char* s12 : {"s1", "s2"})
                if (std::abs(number(row, s12)) > std::abs(largest)) largest = number(row, s12);
            leastX = std::min(leastX, number(row, "sx"));
            leastY = std::min(leastY, number(row, "sy"));
        }
        EXPECT_NEAR(most.SMAX, largest, 1e-5 * std::abs(largest));
        EXPECT_NEAR(most.SMIX, leastX, 1e-5 * std::abs(largest));
        EXPECT_NEAR(most.SMIY, leastY, 1e-5 * std::abs(largest));
        EXPECT_NEAR(pan.SX[most.NMIX - 20][k], most.SMIX, 1e-5 * std::abs(largest));
        EXPECT_NEAR(pan.SY[most.NMIY - 20][k], most.SMIY, 1e-5 * std::abs(largest));
    }
}

TEST(Tolplate, TakesTheFirstNodeWhereASignIsMissing) {
    const auto store = slabStore();  // no load at all: nothing but zeros
    store->slab[1].TEMP = 20.0;      // counts with NTEMP = 1 only
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
    const auto store = readExample("PAN4.DAT");
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
    const SolvedSlabs strong = solveSlabs(*store);
    EXPECT_EQ(strong.plots.at(0).problem.DESLIFE, 9999.99F);
    EXPECT_THAT(strong.text, HasSubstr("unlimited"));

    s.NLAYER = 2;
    s.LAYER[2] = s.LAYER[1];
    s.LAYER[2].PMR = 100;
    const SolvedSlabs weak = solveSlabs(*store);
    EXPECT_LT(weak.plots.at(0).problem.DESLIFE, 1) << "the weaker layer ends the life";
}

TEST(Tolplate, ContinuesFromTheLastLoadGroup) {
    const auto store = readExample("PAN2.DAT");
    const auto corner = [&] { return rowsWhere(solveSlabs(*store).nodes, {{"set", 2}}).back().at("w"); };
    const std::string alone = corner();
    SlabSet& s = store->slab[1];
    s.NLG = 2;
    s.NUDL[1] = 1;
    s.AREA[1][1] = store->slab[2].AREA[1][1];
    EXPECT_EQ(corner(), alone);
}

TEST(Tolplate, TellsWhatPassedItsBounds) {
    const auto store = slabStore();
    SlabSet& s = store->slab[1];
    addForce(s, 1, 20000);
    s.FMAX = 0.01;
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("at node NNCK = 1 passes FMAX = 0.01"));
    s.FORCE[1].FF = -20000.0;  // up
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("at node NNCK = 1 passes FMAX = 0.01"));
    s.NNCK = 20;
    EXPECT_THAT(solveSlabs(*store).text, Not(HasSubstr("passes FMAX")));
    s.FORCE[1].FF = 20000.0;
    s.FMAX = 0.0;
    s.DEL = 1e-30F;
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("passes DEL = 1e-30"));
    s.DEL = .001F;
    s.NCYCLE = 2.0;
    EXPECT_THAT(solveSlabs(*store).text,
                testing::AllOf(HasSubstr("NCYCLE = 2 cycles were used up"), Not(HasSubstr("***"))))
        << "the check has brought it to an end";
    s.NCYCLE = 10.0;
    s.NWT = 1.0;
    EXPECT_THAT(solveSlabs(*store).text, Not(HasSubstr("***")));
    s.LAYER[1].GAMA = 0;
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("*** NWT is 1, but GAMA of slab layer 1 is 0"));
    s.NAS = 2.0;
    s.SUBGRADE[1] = s.SUBGRADE[2] = {3.0, 100.0};
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("*** Node 3 stands twice in NS"));
    store->slab[2] = s;
    store->SlabNPROB = 2.0;
    store->slab[2].INPUT = 1.0;
    EXPECT_THAT(solveSlabs(*store).text, HasSubstr("*** NWT is 1 with INPUT = 1: the weight acts once more"));
}

void listAxis(SlabSet& s, const std::vector<Integer>& nodes) {
    s.NSX = 0;
    for (const Integer node : nodes) s.NODSX[++s.NSX] = node;
}

TEST(Tolplate, RefusesBadDecksWithASentence) {
    const struct {
        void (*spoil)(SlabSet&);
        const char* sentence;
    } cases[] = {
        {[](SlabSet& s) { s.NDAMA = -1; }, "NDAMA is -1, card (3), data set 1: NDAMA must be 0, 1 or 2"},
        {[](SlabSet& s) { s.NDAMA = 1; },
         "NSLAB is 2, card (4), data set 1: a damage analysis is limited to"},
        {[](SlabSet& s) { s.SLAB[1].X[3] = s.SLAB[1].X[2]; }, "X(1, 3) is 60, card (9), data set 1"},
        {[](SlabSet& s) { s.FSAF[1] = 0; }, "FSAF(1) is 0, card (22), data set 1: the factor must be"},
        {[](SlabSet& s) { s.NOTCON = 1.0, s.NODNC[1] = 41; },
         "NODNC(1) is 41, card (17), data set 1: there is no such node"},
        {[](SlabSet& s) { s.NAT1 = 1, s.THICK1[1].NT = 0.0; }, "NT1(1) is 0, card (11)"},
        {[](SlabSet& s) { s.NUDL[1] = 1, s.AREA[1][1] = {1.0, 0.0, 250.0, 0.0, 9.0, 9.0}; },
         "slab 1: Load group 1, area 1 must lie on slab 1, which goes from 0 to 240; XL2 is 250."},
        {[](SlabSet& s) { s.NUDL[1] = 1, s.AREA[1][1] = {2.0, 0.0, 9.0, 9.0, 200.0, 9.0}; },
         "YL2, card (15), data set 1, slab 2: Load group 1, area 1 must lie on slab 2"},
        {[](SlabSet& s) { s.NUDL[1] = 1, s.AREA[1][1] = {2.0, 0.0, 9.0, 9.0, 8.0, 9.0}; },
         "slab 2: Load group 1, area 1: YL2 is 8 and must be greater than YL1, 9."},
        {[](SlabSet& s) {
             s.NGAP = 1.0, s.GAP[1] = {1.0, .1};
         },
         "NGAP is 1, card (6), data set 1: it must be 0 when"},
        {[](SlabSet& s) { s.NPY = 2, s.FSAF[2] = 1; },
         "NCNF is 1, card (13), data set 1: it must be 0 unless"},
        {[](SlabSet& s) { s.INPUT = 1.0; }, "INPUT is 1, card (6), data set 1: there is no data set before"},
        {[](SlabSet& s) { s.SLAB[2].JONO1 = 0; }, "JONO, card (5), data set 1: Joint 1 must lie"},
        {[](SlabSet& s) { s.NJOINT = 2, s.JOINT[2] = s.JOINT[1], s.SLAB[1].JONO4 = s.SLAB[2].JONO3 = 2; },
         "JONO, card (5), data set 1: Joint 2: the slabs do not meet there"},
        {[](SlabSet& s) { s.SLAB[2].Y[2] = 50; },
         "Y, card (9), data set 1: Joint 1: the two slabs must have"},
        {[](SlabSet& s) { s.JOINT[1].NNAJ = 2.0, s.JOINT[1].BARNO[1] = s.JOINT[1].BARNO[2] = 1.0; },
         "NNAJ, card (35), data set 1: Joint 1 has 4 nodes, but NNAJ is 2"},
        {[](SlabSet& s) {
             s.NOTCON = 40.0;
             for (int n = 1; n <= 40; ++n) s.NODNC[n] = static_cast<Integer>(n);
         },
         "the foundation cannot hold the slabs"},
        {[](SlabSet& s) { s.SUBMOD = 0.0; }, "SUBMOD is 0, card (24)"},
        {[](SlabSet& s) { s.NFOUND = 1, s.YMS = 1e4, s.PRS = .6; }, "PRS is .6, card (28)"},
        {[](SlabSet& s) {
             listAxis(s, {1, 5, 9, 13, 17});
         },
         "NODSX, card (19), data set 1, node 21: Node 21 lies on the axis of symmetry along x of node 1,"},
        {[](SlabSet& s) {
             listAxis(s, {2, 6, 10, 14, 18, 22, 26, 30, 34, 38});
         },
         "NODSX, card (19), data set 1, node 2: Node 2 is no node of the axis of symmetry"},
        {[](SlabSet& s) {
             s.NFOUND = 1, s.YMS = 1e4, s.PRS = .4;
             listAxis(s, {1, 5, 9, 13, 17, 21, 25, 29, 33, 37, 4, 8, 12, 16, 20, 24, 28, 32, 36, 40});
         },
         "node 4: Node 4 does not lie on the axis of symmetry along x of the nodes before"},
        {[](SlabSet& s) { s.NFOUND = 2, s.NL = 0.0; }, "NL is 0, card (30)"},
        {[](SlabSet& s) { s.LAYER[1].PR = .6F; }, "PR(1) is .6, card (10)"},
    };
    for (const auto& [spoil, sentence] : cases) {
        const auto store = twoSlabs();
        addForce(store->slab[1], 1, 100);
        spoil(store->slab[1]);
        const TemporaryDirectory folder;
        saveSlabDeck(*store, folder.path() + "slab.DAT");
        folder.write("slab.pan", "of another deck");
        folder.write("SLAB.TXT", "of another deck");
        const Outcome done = run({folder.path() + "slab"});
        EXPECT_EQ(done.status, BAD_DECK);
        EXPECT_THAT(done.errors, HasSubstr(sentence));
        EXPECT_THAT(folder.read("SLAB.TXT"), HasSubstr("Not solved: "));
        EXPECT_FALSE(std::filesystem::exists(folder.path() + "slab.pan")) << "results of another deck stay";
    }
}

TEST(Tolplate, RefusesADamageAnalysisOfOtherPoints) {
    const struct {
        void (*spoil)(SlabSet&);
        const char* sentence;
    } cases[] = {
        {[](SlabSet& s) { s.NP[1] = 10; }, "NP(1) is 10, card (18)"},  // not on the axis
        {[](SlabSet& s) { s.NP[2] = 20; }, "NP(2) is 20, card (18)"},  // not on the edge
        {[](SlabSet& s) { s.NP[3] = 10; }, "NP(3) is 10, card (18)"},  // not outward
        {[](SlabSet& s) { s.NSY = 8; }, "NSY is 8, card (6)"},
        {[](SlabSet& s) { s.NSX = 1, s.NODSX[1] = 1; }, "NSX is 1, card (6)"},
        {[](SlabSet& s) { s.NPRINT = 2; },
         "NPRINT is 2, card (6), data set 1: a damage analysis needs 3 nodes"},
    };
    for (const auto& [spoil, sentence] : cases) {
        auto store = std::make_unique<Store>();
        readSlabDeck(TOLMARK_SOURCE_DIR "/examples/PAN4.DAT", *store);
        spoil(store->slab[1]);
        EXPECT_THAT(solveSlabs(*store).outcome.errors, HasSubstr(sentence));
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
    EXPECT_THAT(outcome().errors, HasSubstr("T(1) is 9, card (10), data set 2: it must be 8"));
    store->slab[2] = good;
    store->slab[2].NSX = 0;
    EXPECT_THAT(outcome().errors, HasSubstr("NSX is 0, card (6), data set 2: it must be 9"));
    store->slab[2] = good;
    store->slab[2].NCYCLE = 1.0;
    EXPECT_THAT(outcome().errors, HasSubstr("NCYCLE is 1, card (6), data set 2"));
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
    EXPECT_THAT(refused.outcome.errors, HasSubstr("solve the deck with TOLGIANT"));
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
    EXPECT_THAT(text, HasSubstr("load group 1 has 21 loaded areas, the plot takes 20"));
    EXPECT_THAT(text, HasSubstr("slab 1 has 625 nodes, the plot takes 420"));
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
