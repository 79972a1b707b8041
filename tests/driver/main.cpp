// velmora-scenario [--work DIR] [--keep] FILE: drives the program by a script and prints what its
// user would have seen.
#include "script/script.h"
#include "windows/ending.h"
#include "windows/folders.h"
#include "windows/runner.h"

#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmora::driver {
namespace {

struct Options {
    std::filesystem::path work;
    bool keep = false;
    std::string script;
};

std::optional<Options> parse_options(std::span<char*> words) {
    Options options;
    std::size_t at = 0;
    for (; at < words.size(); ++at) {
        const std::string_view word = words[at];
        if (word == "--keep")
            options.keep = true;
        else if (word == "--work" && at + 1 < words.size())
            options.work = words[++at];
        else
            break;
    }
    if (at + 1 != words.size() || std::string_view(words[at]).starts_with("--"))
        return {};
    options.script = words[at];
    return options;
}

std::optional<std::string> read_script(const std::string& file) {
    if (file == "-")
        return std::string(std::istreambuf_iterator<char>(std::cin), {});
    std::ifstream stream(file, std::ios::binary);
    if (!stream || std::filesystem::is_directory(file))
        return {};
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// The offscreen platform tells of each window that it can't raise it; what is left is worth
/// reading.
void print_message(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (!message.startsWith(QLatin1String("This plugin does not support ")))
        std::fprintf(stderr, "%s\n", message.toUtf8().constData());
}

int refuse(const std::string& reason) {
    std::fprintf(stderr, "velmora-scenario: %s\n", reason.c_str());
    return static_cast<int>(ExitStatus::script_fault);
}

int run(const Options& options, const std::string& script, char* program) {
    const Folders folders(options.work, options.keep);
    remove_at_end(folders);
    folders.enter();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(print_message);
    int count = 1;
    char* words[] = {program, nullptr};
    QApplication application(count, words);
    QApplication::setApplicationName("Velmora");
    folders.install(QCoreApplication::applicationDirPath().toStdString());
    Stage stage(folders.work(), folders.program());
    Runner runner(stage, lines_of(parse_script(script)));
    runner.begin();
    const int status = QApplication::exec();
    folders.remove();
    return status;
}

int main_of(int argc, char** argv) {
    const auto options = parse_options({argv + 1, argv + argc});
    if (!options)
        return refuse("the form is velmora-scenario [--work DIR] [--keep] FILE");
    const auto script = read_script(options->script);
    if (!script)
        return refuse("can't read " + options->script);
    try {
        return run(*options, *script, argv[0]);
    } catch (const std::exception& failure) {
        return refuse(failure.what());
    }
}

} // namespace
} // namespace velmora::driver

int main(int argc, char** argv) {
    return velmora::driver::main_of(argc, argv);
}
