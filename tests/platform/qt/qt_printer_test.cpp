#include "platform/qt/qt_printer.h"

#include <gtest/gtest.h>

#include <QPrinterInfo>
#include <QProcess>
#include <QStandardPaths>

#include "platform/run_time_error.h"
#include "support/temporary_directory.h"

namespace {

/// Jobs on a machine without a printer; never prints on a real one.
class QtPrinterTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!QPrinterInfo::defaultPrinter().isNull()) GTEST_SKIP() << "this machine has a printer";
        if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
    }

    /// Text of a PDF with its layout; pages end in form feeds.
    QString textOf(const std::string& name, const QString& option = "-layout") {
        QProcess reader;
        reader.start("pdftotext", {option, QString::fromStdString(directory.path() + name), "-"});
        reader.waitForFinished();
        return reader.readAllStandardOutput();
    }

    TemporaryDirectory directory;
    std::vector<std::string> told;
    QtPrinter printer{[this] { return directory.path(); },
                      [this](const auto& text) { told.push_back(text); }};
};

TEST_F(QtPrinterTest, EachJobBecomesANumberedFile) {
    printer.EndDoc();  // nothing is open
    printer.FontBold = true;
    printer.Print("");
    printer.Print(12, "(1) NPROB is the number of problems.");
    printer.EndDoc();
    printer.Print("dropped");
    printer.KillDoc();
    printer.EndDoc();
    printer.PrintForm({10815, 7650, {PageText{1200, 1200, "plot", true, 0, {}}}});

    const std::string folder = "No printer: printed to " + directory.path() + "print/";
    EXPECT_EQ(told, (std::vector{folder + "print-001.pdf", folder + "print-002.pdf"}));
    EXPECT_NE(directory.read("print/print-001.pdf").find("LiberationMono-Bold"), std::string::npos);
    // Eleven characters of 120 twips behind the quarter inch that printers leave: 18 + 66 points.
    EXPECT_TRUE(textOf("print/print-001.pdf", "-bbox").contains(R"(xMin="84.0)"));
    EXPECT_TRUE(textOf("print/print-002.pdf", "-bbox").contains(R"(xMin="60.0)"))
        << "at its own size: 1200 twips are 60 points";
}

TEST_F(QtPrinterTest, NothingOfALongTextIsLost) {
    printer.Print(12, "first" + std::string(250, 'x') + "last");
    for (int line = 1; line <= 90; ++line) printer.Print(12, "line " + std::to_string(line));
    printer.NewPage();
    printer.Print("after");
    printer.EndDoc();
    const QStringList sheets = textOf("print/print-001.pdf").split('\f', Qt::SkipEmptyParts);
    ASSERT_EQ(sheets.size(), 3);
    EXPECT_EQ(sheets.join("").count('x'), 250);
    EXPECT_TRUE(sheets[0].contains("last"));
    EXPECT_TRUE(sheets[1].contains("line 90"));
    EXPECT_EQ(sheets[2].trimmed(), "after");
}

TEST_F(QtPrinterTest, AJobOfTheTextRoutineIsOneSheet) {
    printer.FontBold = true;
    for (int line = 1; line <= 5 + 58; ++line) printer.Print(12, std::to_string(line));
    printer.EndDoc();
    EXPECT_EQ(textOf("print/print-001.pdf").count('\f'), 1);
}

TEST_F(QtPrinterTest, AFailureIsToldAndThrown) {
    directory.write("print", "a file where the folder should be");
    EXPECT_THROW(printer.PrintForm({10815, 7650, {}}), RunTimeError);
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].starts_with("Not printed."));
}

}  // namespace
