#include "runtime/file_table.h"
#include "runtime/numbers.h"
#include "runtime/paths.h"
#include "runtime/text.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace velmora {
namespace {

constexpr std::size_t how_many = 100'000;

/// Coordinates as a computation leaves them, all 17 digits in use.
std::vector<double> raw_coordinates() {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> spread(-1000, 1000);
    std::vector<double> values(how_many);
    for (double& value : values)
        value = spread(random);
    return values;
}

/// Coordinates as they stand in a shape, rounded.
std::vector<double> rounded_coordinates() {
    auto values = raw_coordinates();
    for (double& value : values)
        value = runtime::Round(value, 6);
    return values;
}

template <class Work>
void over(benchmark::State& state, const std::vector<double>& values, Work work) {
    for (auto _ : state) {
        for (const double value : values)
            benchmark::DoNotOptimize(work(value));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(values.size()));
}

void round_raw(benchmark::State& state) {
    over(state, raw_coordinates(), [](double value) { return runtime::Round(value, 6); });
}
BENCHMARK(round_raw);

void round_through_text(benchmark::State& state) {
    over(state, raw_coordinates(), [](double value) { return runtime::Round(value, 18); });
}
BENCHMARK(round_through_text);

void CStr_rounded(benchmark::State& state) {
    over(state, rounded_coordinates(), [](double value) { return runtime::CStr(value, '.'); });
}
BENCHMARK(CStr_rounded);

void CStr_raw(benchmark::State& state) {
    over(state, raw_coordinates(), [](double value) { return runtime::CStr(value, '.'); });
}
BENCHMARK(CStr_raw);

void Format5_rounded(benchmark::State& state) {
    over(state, rounded_coordinates(), [](double value) { return runtime::Format5(value, '.'); });
}
BENCHMARK(Format5_rounded);

void normalized_raw(benchmark::State& state) {
    over(state, raw_coordinates(), runtime::normalized_15);
}
BENCHMARK(normalized_raw);

void normalized_rounded(benchmark::State& state) {
    over(state, rounded_coordinates(), runtime::normalized_15);
}
BENCHMARK(normalized_rounded);

void CDbl_of_text(benchmark::State& state, char separator) {
    std::vector<std::string> texts;
    for (const double value : rounded_coordinates())
        texts.push_back(runtime::fitted(runtime::CStr(value, separator), 21));
    for (auto _ : state) {
        for (const auto& text : texts)
            benchmark::DoNotOptimize(runtime::CDbl(text, separator));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(texts.size()));
}
BENCHMARK_CAPTURE(CDbl_of_text, point, '.');
BENCHMARK_CAPTURE(CDbl_of_text, comma, ',');

/// A file of 1,000,000 records for the length of one benchmark.
class RecordFile {
  public:
    static constexpr std::int64_t records = 1'000'000;

    RecordFile() {
        files.open_random(1, path, 44);
        const std::string record =
            runtime::fitted("123.456789", 21) + runtime::fitted("-987.654321", 21) + "\r\n";
        for (std::int64_t i = 0; i < records; ++i)
            files.write(1, record);
        files.close(1);
    }
    ~RecordFile() {
        files.abandon(1);
        runtime::remove_file(path);
    }
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    std::string path = runtime::join(runtime::path_text(std::filesystem::temp_directory_path()),
                                     "velmora-bench.dat");
    runtime::FileTable files;
};

void read_record(benchmark::State& state) {
    RecordFile file;
    for (auto _ : state) {
        file.files.open_random(1, file.path, 44);
        for (std::int64_t i = 0; i < RecordFile::records; ++i)
            benchmark::DoNotOptimize(file.files.read_record(1));
        file.files.close(1);
    }
    state.SetBytesProcessed(state.iterations() * RecordFile::records * 44);
}
BENCHMARK(read_record)->Unit(benchmark::kMillisecond);

void line_input(benchmark::State& state) {
    RecordFile file;
    for (auto _ : state) {
        file.files.open_input(1, file.path);
        while (!file.files.eof(1))
            benchmark::DoNotOptimize(file.files.line_input(1));
        file.files.close(1);
    }
    state.SetBytesProcessed(state.iterations() * RecordFile::records * 44);
}
BENCHMARK(line_input)->Unit(benchmark::kMillisecond);

void write_record(benchmark::State& state) {
    RecordFile file;
    const std::string record(44, 'x');
    for (auto _ : state) {
        file.files.open_random(1, file.path, 44);
        for (std::int64_t i = 0; i < RecordFile::records; ++i)
            file.files.write(1, record);
        file.files.close(1);
    }
    state.SetBytesProcessed(state.iterations() * RecordFile::records * 44);
}
BENCHMARK(write_record)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace velmora
