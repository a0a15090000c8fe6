// How long the editor takes to open a text of 50 MB, and to give its bytes back.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "platform/qt/byte_text_box.h"

namespace {

std::string results() {
    std::string text;
    while (text.size() < 50'000'000)
        text += "    1          0          0          6     0.029457    -113.51    -96.851\r\n";
    return text;
}

/// Until the user sees the beginning.
void open(benchmark::State& state) {
    const std::string text = results();
    for (auto _ : state) {
        ByteTextBox box("txtEditor", nullptr);
        box.resize(960, 640);
        box.setBytes(text);
        box.show();
        box.grab();
    }
}
BENCHMARK(open)->Unit(benchmark::kMillisecond);

/// Until all of it can be changed.
void openAndFill(benchmark::State& state) {
    const std::string text = results();
    for (auto _ : state) {
        ByteTextBox box("txtEditor", nullptr);
        box.setBytes(text);
        box.setSelText("x");
    }
}
BENCHMARK(openAndFill)->Unit(benchmark::kMillisecond);

void giveBack(benchmark::State& state) {
    ByteTextBox box("txtEditor", nullptr);
    box.setBytes(results());
    box.setSelText("x");
    for (auto _ : state) benchmark::DoNotOptimize(box.bytes());
}
BENCHMARK(giveBack)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
