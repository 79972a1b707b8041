// libFuzzer's side: `velmora-fuzz TARGET ...`, where what stands behind the target is libFuzzer's.
#include "fuzz/target.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

const velmora::fuzz::Target* chosen = nullptr;

/// A process that libFuzzer starts itself knows the target by this alone.
constexpr const char* kVariable = "VELMORA_FUZZ_TARGET";

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** words) {
    if (*count > 1)
        chosen = velmora::fuzz::target_named((*words)[1]);
    if (chosen != nullptr) {
        setenv(kVariable, (*words)[1], 1);
        (*words)[1] = (*words)[0];
        ++*words;
        --*count;
    } else if (const char* const name = std::getenv(kVariable)) {
        chosen = velmora::fuzz::target_named(name);
    }
    if (chosen == nullptr) {
        std::fprintf(stderr, "velmora-fuzz: name a target first:");
        for (const auto& target : velmora::fuzz::targets())
            std::fprintf(stderr, " %s", std::string(target.name).c_str());
        std::fprintf(stderr, "\n");
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    chosen->run({reinterpret_cast<const char*>(data), size});
    return 0;
}
