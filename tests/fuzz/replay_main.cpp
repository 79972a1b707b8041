// Runs inputs through their targets, without libFuzzer.
//
//     velmora-fuzz TARGET FILE|FOLDER...   these inputs
//     velmora-fuzz --all FOLDER            every target with its folder in FOLDER
#include "fuzz/target.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using velmora::fuzz::Target;

int refuse(const std::string& why) {
    std::fprintf(stderr, "velmora-fuzz: %s\n", why.c_str());
    return 2;
}

std::vector<fs::path> files_of(const fs::path& place) {
    if (!fs::is_directory(place))
        return {place};
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(place)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    return files;
}

int run(const Target& target, const fs::path& place) {
    int count = 0;
    for (const fs::path& path : files_of(place)) {
        std::ifstream file(path, std::ios::binary);
        if (!file)
            return refuse("can't read " + path.string());
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        std::fprintf(stderr, "%s\n", path.c_str());
        target.run(bytes);
        ++count;
    }
    std::printf("%s: %d inputs\n", std::string(target.name).c_str(), count);
    return count > 0 ? 0 : refuse("no inputs in " + place.string());
}

int run_all(const fs::path& corpus) {
    for (const Target& target : velmora::fuzz::targets()) {
        if (const int fault = run(target, corpus / target.name); fault != 0)
            return fault;
    }
    return 0;
}

} // namespace

int main(int count, char** words) {
    if (count < 3)
        return refuse("the form is velmora-fuzz TARGET FILE|FOLDER... or --all FOLDER");
    if (std::string(words[1]) == "--all")
        return run_all(words[2]);
    const Target* const target = velmora::fuzz::target_named(words[1]);
    if (target == nullptr)
        return refuse(std::string("no target ") + words[1]);
    for (int i = 2; i < count; ++i) {
        if (const int fault = run(*target, words[i]); fault != 0)
            return fault;
    }
    return 0;
}
