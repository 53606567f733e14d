#include <benchmark/benchmark.h>

#ifdef TESSEL_BENCH_QT
#include <QApplication>
#endif

int main(int argc, char** argv) {
#ifdef TESSEL_BENCH_QT
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
#endif
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
