// velmora-random --seed N --steps N: random steps through the real windows.
// velmora-random --replay SCRIPT: the steps of a script, past those that find no window.
//
// Each step is printed as a line "> STEP", so that what was printed is a script. Ends with 4 and a
// line "broken: WHAT" where something does not hold, with 1 at a run-time error that nothing
// handled, with 3 where a step takes a minute.
#include "script/script.h"
#include "steps.h"
#include "what_holds.h"
#include "windows/ending.h"
#include "windows/folders.h"
#include "windows/runner.h"

#include <QApplication>
#include <charconv>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>

namespace velmora::random {
namespace {

using driver::LineSource;
using driver::ScriptLine;

constexpr int kBroken = 4;

void look(const driver::Stage& stage) {
    const std::string broken = stage.started ? what_is_broken() : "";
    if (broken.empty())
        return;
    std::printf("broken: %s\n", broken.c_str());
    driver::leave(static_cast<driver::ExitStatus>(kBroken));
}

/// One that finds its window gone, or closed by the step before, is passed over.
void pass_over(int /*line*/, const std::string& reason) {
    std::printf("# %s\n", reason.c_str());
}

/// A prompt that wants a number asks until it gets one: one stands behind whatever else was laid.
void lay_number(driver::Answers& answers) {
    const std::optional<std::string> number = "7";
    if (answers.inputs.empty() || answers.inputs.back() != number)
        answers.inputs.insert(answers.inputs.end(), 3, number);
}

LineSource checked(driver::Stage& stage, LineSource source) {
    auto next = [&stage, inner = std::move(source.next)] {
        look(stage);
        lay_number(stage.answers);
        std::fflush(stdout);
        return inner();
    };
    return {.next = std::move(next), .fault = pass_over};
}

LineSource random_lines(const driver::Stage& stage, std::uint64_t seed, int count) {
    auto next = [steps = Steps(stage, seed), opening = Steps::opening(), count,
                 at = 0]() mutable -> std::optional<ScriptLine> {
        if (at == count)
            return {};
        const auto place = static_cast<std::size_t>(at++);
        return ScriptLine{at, place < opening.size() ? opening[place] : steps.next()};
    };
    return {.next = std::move(next), .fault = pass_over};
}

std::uint64_t number_of(std::string_view text) {
    std::uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::string text_of(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int run(char* program, const std::map<std::string, std::string>& options) {
    const driver::Folders folders({}, false);
    driver::remove_at_end(folders);
    folders.enter();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    int count = 1;
    char* words[] = {program, nullptr};
    QApplication application(count, words);
    QApplication::setApplicationName("Velmora");
    folders.install(QCoreApplication::applicationDirPath().toStdString());
    driver::Stage stage(folders.work(), folders.program());
    // No Esc, which the program answers by asking again.
    constexpr int kDisconnected = static_cast<int>(0x80010108);
    stage.cad.no_pick = [] {
        raise(kDisconnected);
    };
    const auto replay = options.find("--replay");
    LineSource source = replay != options.end()
                            ? driver::lines_of(driver::parse_script(replay->second))
                            : random_lines(stage, number_of(options.at("--seed")),
                                           static_cast<int>(number_of(options.at("--steps"))));
    driver::Runner runner(stage, checked(stage, std::move(source)));
    runner.begin();
    return QApplication::exec();
}

int main_of(int argc, char** argv) {
    std::map<std::string, std::string> options;
    for (int i = 1; i + 1 < argc; i += 2)
        options[argv[i]] = argv[i + 1];
    if (options.contains("--replay"))
        options["--replay"] = text_of(options["--replay"]);
    else if (!options.contains("--seed") || !options.contains("--steps")) {
        std::fprintf(stderr, "velmora-random: --seed N --steps N, or --replay SCRIPT\n");
        return 2;
    }
    return run(argv[0], options);
}

} // namespace
} // namespace velmora::random

int main(int argc, char** argv) {
    return velmora::random::main_of(argc, argv);
}
