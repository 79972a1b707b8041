#include "document/recent_files.h"

#include "document/windows/velmora.h"
#include "platform/platform.h"
#include "platform/settings_store.h"
#include "runtime/paths.h"

#include <algorithm>
#include <span>

namespace velmora {

namespace {

constexpr std::string_view kSection = "RecentFiles";

// The entries in use, from 1.
std::span<RecentEntry> entries() {
    return std::span(state::Velmora.mnuRecentFile).subspan(1);
}

int count() {
    return static_cast<int>(entries().size());
}

std::string key_of(int index) {
    return "RecentFile" + std::to_string(index);
}

std::string stored(int index) {
    return platform().settings.get(kSection, key_of(index)).value_or("");
}

void store(int index, std::string_view path) {
    platform().settings.save(kSection, key_of(index), path);
}

std::string name_of(const std::string& path) {
    const auto last = std::find_if(path.rbegin(), path.rend(), runtime::is_separator);
    return {last.base(), path.end()};
}

// The place `index` takes what is above it, and so on up to the first, which takes the path.
void shift_down(int last, const std::string& path, std::string (*value_at)(int)) {
    for (int index = last; index >= 1; --index)
        if (const std::string value = value_at(index); !value.empty())
            store(index + 1, value);
    store(1, path);
}

std::string tag_of(int index) {
    return entries()[static_cast<std::size_t>(index) - 1].path;
}

bool is_in_list(std::string_view path) {
    return std::ranges::find(entries(), path, &RecentEntry::path) != entries().end();
}

void add_on_top(const std::string& path) {
    shift_down(count() - 1, path, tag_of);
}

// Another window of the program may have changed the store meanwhile: a path that is no
// longer in it takes the last place's.
void move_to_top(const std::string& path) {
    int index = 1;
    while (index < count() && stored(index) != path)
        ++index;
    shift_down(index - 1, path, stored);
}

} // namespace

void GetRecentFiles() {
    for (RecentEntry& entry : entries())
        entry.visible = false;
    state::Velmora.mnuRecentFileSep_visible = !stored(1).empty();
    if (!state::Velmora.mnuRecentFileSep_visible)
        return;
    int index = 0;
    for (RecentEntry& entry : entries()) {
        entry.path = stored(++index);
        const std::string name = name_of(entry.path);
        entry.caption = '&' + std::to_string(index);
        entry.caption += ' ' + name;
        if (name.empty())
            break;
        entry.visible = true;
    }
}

void UpdateFileMenu(std::string_view path) {
    if (path.empty())
        return;
    // Another window of the program may have put its files in meanwhile.
    (void)platform().settings.keep();
    GetRecentFiles();
    const std::string file(path);
    if (is_in_list(file))
        move_to_top(file);
    else
        add_on_top(file);
    (void)platform().settings.keep();
    GetRecentFiles();
}

} // namespace velmora
