#include "platform/qt/page_renderer.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "platform/run_time_error.h"
#include "support/temporary_directory.h"

namespace {

Page aPage() {
    Page page{10815, 7650, {}};
    const PageFont font;
    page.ops.push_back(PageText{1700, 1500, "Radius =", false, 0xFF0000, font});
    page.ops.push_back(PageText{{}, {}, " 4.5 ", false, 0xFF0000, font});
    page.ops.push_back(PageText{{}, {}, "in.", true, 0xFF0000, font});
    page.ops.push_back(PageText{{}, {}, "below", false, 0, font});
    page.ops.push_back(PageLine{2000, 4000, 6000, 4000, 0, 1, false});
    page.ops.push_back(PageLine{2000, 5000, 2010, 5000, 0xFF00FF, 3, false});
    page.ops.push_back(PageCircle{4000, 6000, 500, 0, 1, 0x00FF00});
    page.ops.push_back(PageBox{7000, 5000, 8000, 4500, 0, 1, {}});
    return page;
}

TEST(PageRenderer, TextGoesOnWhereTheLastOneEnded) {
    TemporaryDirectory directory;
    renderSvg(aPage(), directory.path() + "page.svg");
    static const QRegularExpression text(R"rx(<text[^>]* x="([^"]*)" y="([^"]*)"[^>]*>([^<]*)<)rx");
    QStringList texts;
    std::vector<double> x, y;
    const QString svg = QString::fromStdString(directory.read("page.svg"));
    for (const auto& found : text.globalMatch(svg)) {
        x.push_back(found.captured(1).toDouble());
        y.push_back(found.captured(2).toDouble());
        texts << found.captured(3);
    }
    ASSERT_EQ(texts, QStringList({"Radius =", " 4.5 ", "in.", "below"})) << "with their blanks";
    const QFontMetricsF measures(twipFont({}));
    EXPECT_NEAR(x[0], 1700, 0.01);
    EXPECT_NEAR(y[0], 1500 + measures.ascent(), 0.01) << "the position is the text's top";
    EXPECT_NEAR(x[1], 1700 + measures.horizontalAdvance("Radius ="), 0.01);
    EXPECT_NEAR(x[2], 1700 + measures.horizontalAdvance("Radius = 4.5 "), 0.01);
    EXPECT_EQ(x[3], 0);
    EXPECT_NEAR(y[3] - y[2], measures.lineSpacing(), 0.01);
}

TEST(PageRenderer, PdfHoldsTextAtItsPlaceAndEmbedsTheFont) {
    TemporaryDirectory directory;
    const std::string path = directory.path() + "pages.pdf";
    Page tall{7200, 14400, {PageText{720, 1440, "second page", false, 0, {"Courier New", 10, true}}}};
    renderPdf({aPage(), tall}, path);
    const std::string bytes = directory.read("pages.pdf");
    EXPECT_TRUE(bytes.starts_with("%PDF"));
    EXPECT_NE(bytes.find("/FontFile2"), std::string::npos);
    EXPECT_NE(bytes.find("LiberationMono-Bold"), std::string::npos) << "the twin of Courier New";

    if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
    QProcess reader;
    reader.start("pdftotext", {"-bbox", QString::fromStdString(path), "-"});
    ASSERT_TRUE(reader.waitForFinished());
    const QString layout = reader.readAllStandardOutput();
    EXPECT_EQ(layout.count("<page "), 2);
    EXPECT_TRUE(layout.contains(R"(<page width="360.000000" height="720.000000">)"));
}

TEST(PageRenderer, APictureHasItsResolution) {
    TemporaryDirectory directory;
    renderPng(aPage(), directory.path() + "page.png", 300);
    const QImage picture(QString::fromStdString(directory.path() + "page.png"));
    EXPECT_EQ(picture.width(), 2253);
    EXPECT_NEAR(picture.dotsPerMeterX(), 300 / 0.0254, 1);
    EXPECT_EQ(picture.pixelColor(833, 1250), QColor(0, 255, 0)) << "the middle of the circle";
}

TEST(PageRenderer, ShapesHaveTheirColoursAndStraightLinesAreSharp) {
    for (const double pixelsPerTwip : {0.1, 0.125, 0.15, 0.2, 0.25}) {
        QImage image(QSize(int(10815 * pixelsPerTwip), int(7650 * pixelsPerTwip)), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        paintPage(painter, aPage(), pixelsPerTwip);
        painter.end();
        const auto at = [&](double x, double y) {
            return image.pixelColor(int(x * pixelsPerTwip), int(y * pixelsPerTwip));
        };
        EXPECT_EQ(at(4000, 6000), QColor(0, 255, 0));
        EXPECT_EQ(at(2005, 5000), QColor(255, 0, 255));
        EXPECT_EQ(at(7500, 4750), QColor(Qt::white)) << "a box without fill";
        for (int y = int(3900 * pixelsPerTwip); y < int(4100 * pixelsPerTwip); ++y) {
            const QColor colour = image.pixelColor(int(3000 * pixelsPerTwip), y);
            EXPECT_TRUE(colour == QColor(Qt::white) || colour == QColor(Qt::black)) << pixelsPerTwip;
        }
    }
}

TEST(PageRenderer, CoordinatesFarBeyondThePageAreHarmless) {
    TemporaryDirectory directory;
    const float far = 3e30F;
    Page page{10815, 7650, {}};
    page.ops = {PageLine{-far, 4000, far, 4000, 0, 1, false}, PageLine{0, far, far, far, 0, 1, true},
                PageCircle{4000, 4000, far, 0, 1, {}},        PageCircle{far, 4000, 100, 0, 1, {}},
                PageBox{-far, -far, far, 5000, 0, 1, {}},     PageText{far, far, "away", true, 0, {}}};
    renderPng(page, directory.path() + "page.png", 96);
    renderPdf({page}, directory.path() + "page.pdf");
    const QImage picture(QString::fromStdString(directory.path() + "page.png"));
    EXPECT_EQ(picture.pixelColor(300, 4000 * 96 / 1440), QColor(Qt::black)) << "the line crosses the page";
}

TEST(PageRenderer, AFailedFileLeavesTheOldOne) {
    TemporaryDirectory directory;
    directory.write("old.pdf", "old");
    EXPECT_THROW(renderPdf({}, directory.path() + "old.pdf"), RunTimeError);
    EXPECT_THROW(renderPng(aPage(), directory.path() + "old.pdf", 0), RunTimeError);
    EXPECT_EQ(directory.read("old.pdf"), "old");
    EXPECT_THROW(renderSvg(aPage(), directory.path() + "nowhere/page.svg"), RunTimeError);
}

}  // namespace
