// The manual as a text: complete against the decks, in one layout, printed whole.
#include "text/manual.h"

#include <gmock/gmock.h>

#include <regex>
#include <set>
#include <sstream>

#include "layered/layered_cards.h"
#include "platform/print_text_box.h"
#include "slab/slab_cards.h"
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

/// The pages of sections and sheets, without what they include.
std::map<std::string, Lines> ownLines() {
    std::map<std::string, Lines> pages;
    for (const ManualSection& section : manualSections()) pages[section.page];
    for (const Sheet& sheet : sheets()) pages[sheet.page];
    for (auto& [page, lines] : pages) lines = linesOf(embeddedPages().at(page));
    return pages;
}

TEST(Manual, IsPlainTextThatFitsItsBoxAndItsPaper) {
    for (const auto& [page, lines] : ownLines()) {
        EXPECT_GT(lines.size(), 15U) << page;
        for (const std::string& line : lines) {
            EXPECT_LE(line.size(), 75U) << page << ": " << line;
            EXPECT_FALSE(line.ends_with(' ') || line.find('\t') != std::string::npos) << page << ": " << line;
            const auto printable = [](char c) { return c >= ' ' && c <= '~'; };
            EXPECT_TRUE(std::all_of(line.begin(), line.end(), printable)) << page << ": " << line;
        }
    }
}

TEST(Manual, ShowsDecksInLinesThatFit) {
    for (const auto& [name, text] : embeddedPages()) {
        if (!name.starts_with("BED") && !name.starts_with("PAN")) continue;
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
                EXPECT_TRUE(pieces >> piece) << name << ": " << word;
                if (inLabel && piece == "...") break;  // a label may be cut
                EXPECT_EQ(piece, word) << name;
                inLabel = inLabel || word.starts_with('(');
            }
        }
    }
}

TEST(Manual, PrintsEveryLineOfEveryPage) {
    for (const auto& [page, lines] : ownLines()) {
        RecordingPrinter printer;
        PrintTextBox(printer, textPage(page, "\r\n"));
        std::string printed;
        for (const auto& job : printer.jobs)
            for (const std::string& line : job.lines) printed += line + "\n";
        for (const std::string& line : lines) {
            if (line.starts_with("@include ")) continue;
            EXPECT_NE(printed.find("           " + line + "\n"), std::string::npos) << page << ": " << line;
        }
    }
}

/// A card as the manual has it: its number, and its fields in order.
struct Described {
    int card;
    Lines fields;
    bool operator==(const Described&) const = default;
};

void PrintTo(const Described& d, std::ostream* out) {
    *out << "(" << d.card << ")";
    for (const std::string& field : d.fields) *out << " " << field;
}

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
        for (std::string word; in >> word;) cards.back().fields.push_back(word);
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
                for (const auto& field : run.fields) cards.back().fields.push_back(field.name);
        }
    return cards;
}

TEST(Manual, HasEveryLineOfTheDataFilesInItsOrder) {
    EXPECT_THAT(cardsOnPage("manual_layered_file"), ::testing::ElementsAreArray(cardsOf(layeredCards())));
    EXPECT_THAT(cardsOnPage("manual_slab_file"), ::testing::ElementsAreArray(cardsOf(slabCards())));
}

/// Fields that the page describes: in capitals at the left margin, with text behind or above them.
std::multiset<std::string> fieldsOnPage(const std::string& page) {
    static const std::regex field("([A-Z][A-Z0-9]*) {2,}\\S.*");
    std::multiset<std::string> fields;
    for (const std::string& line : linesOf(textPage(page, "\n"))) {
        std::smatch found;
        if (std::regex_match(line, found, field) || std::regex_match(line, found, std::regex("(TEMPREF) .*")))
            fields.insert(found[1]);
    }
    return fields;
}

/// The page describes each field of the cards, and nothing else in that manner.
void expectEveryField(const std::string& page, const std::vector<Described>& cards) {
    const auto described = fieldsOnPage(page);
    std::set<std::string> wanted;
    for (const Described& card : cards)
        for (const std::string& field : card.fields) wanted.insert(field.substr(0, field.find('(')));
    for (const std::string& field : wanted) EXPECT_GE(described.count(field), 1U) << page << ": " << field;
    for (const std::string& field : described)
        EXPECT_TRUE(wanted.contains(field)) << page << ": " << field << " is no field";
}

TEST(Manual, DescribesEveryFieldOfTheDecks) {
    expectEveryField("manual_layered_input", cardsOf(layeredCards()));
    expectEveryField("manual_slab_input", cardsOf(slabCards()));
    for (const char* twice : {"K2", "K1"})
        EXPECT_EQ(fieldsOnPage("manual_layered_input").count(twice), 2U) << twice << " of two materials";
}

TEST(Manual, SectionsAndSheetsHaveTheirTitles) {
    EXPECT_EQ(manualSections().size(), 10U);
    EXPECT_EQ(manualSections()[0].title, "Use of Main Screen");
    EXPECT_EQ(manualSections()[9].title, "Examples for TOLPLATE");
    const std::map<std::string, std::pair<std::string, int>> wanted = {
        {"frmBed1", {"Example 1: Linear Elastic Three-layer System under Dual-Tandem Tires", 4170}},
        {"frmBed2", {"Example 2: Nonlinear Elastic Two-layer System under a Circular Load", 3750}},
        {"frmBed3", {"Example 3: Viscoelatic Two-layer System under stationary Circular Load", 5000}},
        {"frmBed4", {"Example 4: Viscoelastic Three-layer System with 4 Periods and 1 Load Group", 3580}},
        {"frmBed5", {"Example 5: Linear Elsatic Two-layer System with 1 Period and 3 Load Groups", 4800}},
        {"frmBed6", {"Example 6: N. Elastic and Viscoelastic with 2 Periods and 2 Load Groups", 5220}},
        {"frmPan1", {"Example 1: Curling of Slab with Full Contact: (a) Liquid Foundation and (b)", 4100}},
        {"frmPan2", {"Example 2:  Curling of Slab with Partial Contact: (a) Liquid Foundation", 3950}},
        {"frmPan3", {"Example 3:  Two Slabs on Solid Foundation with Full Contact", 4400}},
        {"frmPan4", {"Example 4:  Damage Analysis with Two Periods and Three Load Groups", 4450}},
        {"frmPan5", {"Example 5: Four Slabs on Layer Foundation with Partial Contact", 4400}},
        {"frmPan6", {"Example 6: Raft on Solid Foundation with Retaining Walls on three sides", 4900}},
        {"frmMohr", {"Failure Envelope of Granular Materials", 3885}},
    };
    EXPECT_EQ(sheets().size(), wanted.size());
    for (const Sheet& sheet : sheets()) {
        ASSERT_TRUE(wanted.contains(sheet.form)) << sheet.form;
        EXPECT_EQ(linesOf(embeddedPages().at(sheet.page)).front(), wanted.at(sheet.form).first);
        EXPECT_EQ(sheet.printHeight, wanted.at(sheet.form).second) << sheet.form;
    }
}

TEST(Sheets, FiguresStandOnThePartThatIsPrinted) {
    for (const Sheet& sheet : sheets()) {
        const Page page = sheet.picture();
        EXPECT_EQ(page.width, sheetWidth);
        EXPECT_LE(page.height, static_cast<float>(sheet.printHeight));
        EXPECT_GT(page.ops.size(), 20U) << sheet.form;
        const auto inside = [&](float x, float y) {
            return x >= 0 && x <= page.width && y >= 0 && y <= page.height;
        };
        for (const PageOp& op : page.ops) {
            if (const auto* line = std::get_if<PageLine>(&op)) {
                EXPECT_TRUE(inside(line->x1, line->y1) && inside(line->x2, line->y2)) << sheet.form;
            } else if (const auto* text = std::get_if<PageText>(&op)) {
                EXPECT_TRUE(inside(*text->x, *text->y + text->font.size * 25) &&
                            inside(*text->x + widthOf(text->text, text->font.size), *text->y))
                    << sheet.form << ": " << text->text;
            } else if (const auto* circle = std::get_if<PageCircle>(&op)) {
                EXPECT_TRUE(inside(circle->x - circle->radius, circle->y - circle->radius) &&
                            inside(circle->x + circle->radius, circle->y + circle->radius))
                    << sheet.form;
            }
        }
    }
}

}  // namespace
