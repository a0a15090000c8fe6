#include "program/command_line.h"

#include <CLI/CLI.hpp>
#include <array>
#include <filesystem>
#include <iostream>
#include <map>

#include "platform/files.h"
#include "platform/qt/batch.h"
#include "platform/qt/page_renderer.h"
#include "platform/run_time_error.h"
#include "plots/contour_plot.h"
#include "plots/layered_plot.h"
#include "plots/plot_name.h"
#include "plots/slab_plot.h"
#include "program/desktop_program.h"
#include "store/deck_kind.h"
#include "store/store.h"

namespace {

constexpr int DONE = 0, FAILED = 1;

int fail(const std::string& deck, const std::string& sentence) {
    std::cerr << "tolmark: " << deck << ": " << sentence << std::endl;
    return FAILED;
}

/// The file behind a deck's name, given with or without ".DAT".
std::string deckFile(const std::string& name) {
    const std::string path = std::filesystem::absolute(name).lexically_normal().string();
    return resolveName(withDatExtension(path));
}

/// The executable of the solver that decks of this kind are for, nullptr for none.
const char* solverOf(DeckKind kind) {
    switch (kind) {
        case DeckKind::Layered:
            return "TOLSTRAT.EXE";
        case DeckKind::Slab:
            return "TOLPLATE.EXE";
        case DeckKind::Unknown:
            break;
    }
    return nullptr;
}

/// Runs the solver that the deck is for and waits for it.
int solve(const std::string& name, const std::string& programDirectory,
          const std::vector<std::string>& options) {
    const std::string deck = deckFile(name);
    const char* solver = solverOf(deckKind(deck));
    if (!solver) return fail(deck, "this is no data file of layered systems or slabs");
    std::vector<std::string> arguments{deck.substr(0, deck.size() - 4)};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return runAndWait(programDirectory + "/" + solver, arguments);
}

/// Options that go to the solver as they are; it refuses those of the other one.
constexpr std::array<std::pair<const char*, const char*>, 4> tableOptions = {
    {{"--csv", "the results"},
     {"--csv-moduli", "the moduli of a layered deck by iteration"},
     {"--csv-damage", "the damage of a layered deck"},
     {"--csv-joints", "the joint forces of a slab deck"}}};

struct PlotRequest {
    std::string deck, pdf, svg, png;
    bool contour = false;
    int page = 0;  ///< 0: all of them
    int dpi = 150;
};

/// The name for page `number` of `total`: the name itself for one page, else numbered before its ending.
std::string pageName(const std::string& name, std::size_t number, std::size_t total) {
    if (total == 1) return name;
    const std::filesystem::path path(name);
    return (path.parent_path() /
            (path.stem().string() + "-" + std::to_string(number) + path.extension().string()))
        .string();
}

/// The deck's plot file with this extension.
std::string plotFile(const std::string& deck, const std::string& extension) {
    return resolveName(plotFileName(deck.substr(0, deck.size() - 4) + ".DAT", extension));
}

/// A deck that does not tell its kind, or is not there, is of the kind of which it has a plot file.
DeckKind plottedKind(const std::string& deck) {
    const DeckKind kind = std::filesystem::exists(deck) ? deckKind(deck) : DeckKind::Unknown;
    if (kind != DeckKind::Unknown) return kind;
    const bool slabPlot = std::filesystem::exists(plotFile(deck, ".PAN"));
    return slabPlot && !std::filesystem::exists(plotFile(deck, ".BED")) ? DeckKind::Slab : DeckKind::Layered;
}

/// Pages build on each other, so those before the wanted one are always built. `nextPage` gives one after
/// the other, nothing behind the last.
template <class NextPage>
std::vector<Page> wantedPages(const PlotRequest& request, NextPage nextPage) {
    std::vector<Page> pages;
    for (int number = 1; std::optional<Page> page = nextPage(); ++number) {
        if (request.page == 0 || request.page == number) pages.push_back(std::move(*page));
        if (request.page == number) break;
    }
    return pages;
}

/// Contours take the interval that is proposed.
std::vector<Page> contourPages(const PlotRequest& request, const std::string& deck) {
    int DIRN = 0;
    ContourPlot plot(plotFile(deck, ".PAN"), DIRN);
    const auto accept = [](const auto&, const auto&, const std::string& proposal) { return proposal; };
    return wantedPages(request, [&]() -> std::optional<Page> {
        auto sheet = plot.next(accept);
        if (!sheet) return std::nullopt;
        return std::move(sheet->page);
    });
}

std::vector<Page> plotPages(const PlotRequest& request, const std::string& deck) {
    if (request.contour) return contourPages(request, deck);
    if (plottedKind(deck) == DeckKind::Slab) {
        SlabPlot plot(plotFile(deck, ".PAN"));
        return wantedPages(request, [&] { return plot.next(); });
    }
    LayeredPlot plot(plotFile(deck, ".BED"));
    return wantedPages(request, [&] { return plot.next(); });
}

int plot(const PlotRequest& request) {
    const std::string deck = deckFile(request.deck);
    std::vector<Page> pages;
    try {
        if (request.contour && plottedKind(deck) == DeckKind::Layered)
            return fail(deck, "only slab decks have contours");
        pages = plotPages(request, deck);
    } catch (const RunTimeError& error) {
        return fail(deck, error.fault() == Fault::FileNotFound ? "no plot file; solve the deck first"
                                                               : std::string("Data error: ") + error.what());
    } catch (const NoContours& reason) {
        return fail(deck, reason.what());
    }
    if (pages.empty()) return fail(deck, "the plot has no page " + std::to_string(request.page));

    const BatchApplication application;
    if (!request.pdf.empty()) renderPdf(pages, request.pdf);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (!request.svg.empty()) renderSvg(pages[i], pageName(request.svg, i + 1, pages.size()));
        if (!request.png.empty())
            renderPng(pages[i], pageName(request.png, i + 1, pages.size()), request.dpi);
    }
    return DONE;
}

}  // namespace

int runCommandLine(int argc, char** argv) {
    CLI::App app{
        "TOLMARK: structural analysis of road pavements. Without a command it opens the main screen.",
        "tolmark"};
    app.set_version_flag("--version", "TOLMARK " TOLMARK_VERSION);
    app.require_subcommand(0, 1);

    std::vector<std::string> decks;
    auto* solveCommand = app.add_subcommand("solve", "solve decks with the solver that they are for");
    solveCommand->add_option("deck", decks, "data files")->required();
    std::map<std::string, std::string> passedOn;
    for (const auto& [option, purpose] : tableOptions)
        solveCommand->add_option(option, passedOn[option],
                                 std::string("write ") + purpose + " as a table to this file, of one deck");

    PlotRequest request;
    auto* plotCommand = app.add_subcommand("plot", "write the plot pages of a solved deck");
    plotCommand->add_option("deck", request.deck, "data file")->required();
    auto* targets = plotCommand->add_option_group("targets", "where the pages go");
    targets->add_option("--pdf", request.pdf, "all pages into one PDF file");
    targets->add_option("--svg", request.svg, "one SVG file a page, numbered when there are several");
    targets->add_option("--png", request.png, "one PNG file a page, numbered when there are several");
    targets->require_option(1, 3);
    plotCommand->add_flag("--contour", request.contour, "the contour plot of a slab deck");
    plotCommand->add_option("--page", request.page, "only this page")->check(CLI::PositiveNumber);
    plotCommand->add_option("--dpi", request.dpi, "resolution of PNG files")->check(CLI::Range(20, 1200));

    CLI11_PARSE(app, argc, argv);
    if (app.get_subcommands().empty()) return runDesktop(argc, argv);
    try {
        if (*plotCommand) return plot(request);
        std::vector<std::string> options;
        for (const auto& [option, file] : passedOn)
            if (!file.empty()) options.insert(options.end(), {option, file});
        if (!options.empty() && decks.size() > 1)
            return fail(options[0], "takes the results of one deck only");
        int status = DONE;
        for (const std::string& deck : decks)
            if (solve(deck, executableDirectory(), options) != DONE) status = FAILED;
        return status;
    } catch (const std::exception& error) {
        std::cerr << "tolmark: " << error.what() << std::endl;
        return FAILED;
    }
}
