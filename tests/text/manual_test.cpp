// The manual and the help boxes as texts: complete against the decks, in one layout.
#include "text/manual.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>
#include <sstream>

#include "layered/layered_cards.h"
#include "platform/print_text_box.h"
#include "slab/slab_cards.h"
#include "support/page_reading.h"
#include "support/recording_printer.h"
#include "text/figure.h"
#include "text/pages.h"
#include "text/sheets.h"

namespace {

using Lines = std::vector<std::string>;

Lines linesOf(const std::string& text) {
    std::istringstream in(text);
    Lines lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

bool isDeck(const std::string& page) { return page.starts_with("BED") || page.starts_with("PAN"); }

TEST(Manual, IsPlainTextThatFitsItsBoxAndItsPaper) {
    static const std::regex plain("([ -~]*[!-~])?");
    for (const auto& [page, text] : embeddedPages()) {
        if (isDeck(page)) continue;
        for (const std::string& line : linesOf(text)) {
            EXPECT_LE(line.size(), 75U) << page << ": " << line;
            EXPECT_TRUE(std::regex_match(line, plain)) << page << ": " << line;
        }
    }
}

TEST(Manual, PrintsEveryLineOfEveryPage) {
    for (const auto& [page, text] : embeddedPages()) {
        const std::string shown = textPage(page, "\r\n");
        RecordingPrinter printer;
        PrintTextBox(printer, shown);
        std::size_t printed = 0;
        for (const auto& job : printer.jobs) printed += job.lines.size();
        const std::size_t topOfFirst = 5, topOfOthers = 4;
        EXPECT_EQ(printed - topOfFirst - topOfOthers * (printer.jobs.size() - 1), linesOf(shown).size())
            << page;
    }
}

TEST(Manual, NumbersTheParagraphsOfHelpBoxes) {
    int boxes = 0;
    for (const auto& [page, text] : embeddedPages()) {
        if (!page.starts_with("frm_")) continue;
        ++boxes;
        int found = 0;
        for (const std::string& line : linesOf(text)) {
            if (!line.starts_with('(')) continue;
            EXPECT_TRUE(line.starts_with("(" + std::to_string(++found) + ")")) << page << ": " << line;
        }
        EXPECT_GE(found, 3) << page;
    }
    EXPECT_EQ(boxes, 25);
}

TEST(Manual, ShowsDecksInLinesThatFit) {
    for (const auto& [name, text] : embeddedPages()) {
        EXPECT_EQ(textPage(name, "\n").find("@include"), std::string::npos) << name;
        if (!isDeck(name)) continue;
        std::string shown;
        for (const std::string& line : linesOf(textPage(name, "\n"))) {
            EXPECT_LE(line.size(), 75U) << name << ": " << line;
            shown += line + " ";
        }
        std::istringstream pieces(shown);
        for (const std::string& line : linesOf(text)) {
            std::istringstream whole(line);
            bool inLabel = false;
            for (std::string word, piece; whole >> word;) {
                pieces >> piece;
                if (inLabel && piece == "...") break;  // a label may be cut
                EXPECT_EQ(piece, word) << name;
                inLabel = inLabel || word.starts_with('(');
            }
        }
    }
}

/// A card as the manual has it: its number, and its fields in order.
using Described = std::pair<int, Lines>;

/// "(5) NL NZ ICL NSTD NUNIT" with whatever follows it as a continuation in capitals.
std::vector<Described> cardsOnPage(const std::string& page) {
    static const std::regex head("\\((\\d+)\\) +([A-Z][A-Z0-9() ]*)"), more(" +[A-Z][A-Z0-9 ]*");
    std::vector<Described> cards;
    bool inFile = false, open = false;
    for (const std::string& line : linesOf(textPage(page, "\n"))) {
        inFile = (inFile || line == "THE FILE") && line != "EXAMPLE";
        std::smatch found;
        std::string words;
        if (inFile && std::regex_match(line, found, head)) {
            cards.push_back({std::stoi(found[1]), {}});
            words = found[2];
            open = true;
        } else if (open && std::regex_match(line, more)) {
            words = line;
        } else {
            open = false;
        }
        std::istringstream in(words);
        for (std::string word; in >> word;) cards.back().second.push_back(word);
    }
    return cards;
}

template <class Set>
std::vector<Described> cardsOf(const CardTable<Set>& table) {
    std::vector<Described> cards = {{1, {"NPROB"}}};
    for (const auto& block : table)
        for (const auto& card : block.cards) {
            cards.push_back({card.number, {}});
            for (const auto& run : card.runs)
                for (const auto& field : run.fields) cards.back().second.push_back(field.name);
        }
    return cards;
}

TEST(Manual, HasEveryLineOfTheDataFilesInItsOrder) {
    EXPECT_THAT(cardsOnPage("manual_layered_file"), ::testing::ElementsAreArray(cardsOf(layeredCards())));
    EXPECT_THAT(cardsOnPage("manual_slab_file"), ::testing::ElementsAreArray(cardsOf(slabCards())));
}

/// Fields that the page describes: in capitals at the left margin, with text behind or above them.
std::multiset<std::string> fieldsOnPage(const std::string& page) {
    static const std::regex field("([A-Z][A-Z0-9]*) {2,}\\S.*|(TEMPREF) .*");
    std::multiset<std::string> fields;
    for (const std::string& line : linesOf(textPage(page, "\n"))) {
        std::smatch found;
        if (std::regex_match(line, found, field)) fields.insert(found[1].str() + found[2].str());
    }
    return fields;
}

/// The page describes each field of the cards, and nothing else in that manner.
void expectEveryField(const std::string& page, const std::vector<Described>& cards) {
    const auto described = fieldsOnPage(page);
    std::set<std::string> wanted;
    for (const auto& [card, fields] : cards)
        for (const std::string& field : fields) wanted.insert(field.substr(0, field.find('(')));
    EXPECT_EQ(std::set(described.begin(), described.end()), wanted) << page;
}

TEST(Manual, DescribesEveryFieldOfTheDecks) {
    expectEveryField("manual_layered_input", cardsOf(layeredCards()));
    expectEveryField("manual_slab_input", cardsOf(slabCards()));
    for (const char* twice : {"K2", "K1"})
        EXPECT_EQ(fieldsOnPage("manual_layered_input").count(twice), 2U) << twice << " of two materials";
}

TEST(Manual, SheetsHaveTheirTitlesAndHeights) {
    std::string found;
    for (const Sheet& sheet : sheets())
        found += sheet.form + " " + std::to_string(sheet.printHeight) + " " +
                 linesOf(embeddedPages().at(sheet.page)).front() + "\n";
    EXPECT_EQ(found, R"(frmBed1 4170 Example 1: Linear Elastic Three-layer System under Dual-Tandem Tires
frmBed2 3750 Example 2: Nonlinear Elastic Two-layer System under a Circular Load
frmBed3 5000 Example 3: Viscoelatic Two-layer System under stationary Circular Load
frmBed4 3580 Example 4: Viscoelastic Three-layer System with 4 Periods and 1 Load Group
frmBed5 4800 Example 5: Linear Elsatic Two-layer System with 1 Period and 3 Load Groups
frmBed6 5220 Example 6: N. Elastic and Viscoelastic with 2 Periods and 2 Load Groups
frmPan1 4100 Example 1: Curling of Slab with Full Contact: (a) Liquid Foundation and (b)
frmPan2 3950 Example 2:  Curling of Slab with Partial Contact: (a) Liquid Foundation
frmPan3 4400 Example 3:  Two Slabs on Solid Foundation with Full Contact
frmPan4 4450 Example 4:  Damage Analysis with Two Periods and Three Load Groups
frmPan5 4400 Example 5: Four Slabs on Layer Foundation with Partial Contact
frmPan6 4900 Example 6: Raft on Solid Foundation with Retaining Walls on three sides
frmMohr 3885 Failure Envelope of Granular Materials
)");
}

TEST(Sheets, FiguresStandOnThePartThatIsPrinted) {
    for (const Sheet& sheet : sheets()) {
        const Page page = sheet.picture();
        EXPECT_EQ(page.width, sheetWidth);
        EXPECT_LE(page.height, static_cast<float>(sheet.printHeight));
        EXPECT_GT(page.ops.size(), 20U) << sheet.form;
        const auto expectInside = [&](float x1, float y1, float x2, float y2) {
            for (const float x : {x1, x2}) EXPECT_TRUE(x >= 0 && x <= page.width) << sheet.form << " " << x;
            for (const float y : {y1, y2}) EXPECT_TRUE(y >= 0 && y <= page.height) << sheet.form << " " << y;
        };
        for (const PageLine& line : opsOf<PageLine>(page)) expectInside(line.x1, line.y1, line.x2, line.y2);
        for (const PageText& text : opsOf<PageText>(page))
            expectInside(*text.x, *text.y, *text.x + widthOf(text.text, text.font.size),
                         *text.y + text.font.size * 25);
        for (const PageCircle& c : opsOf<PageCircle>(page))
            expectInside(c.x - c.radius, c.y - c.radius, c.x + c.radius, c.y + c.radius);
    }
}

}  // namespace
