#include "services/guide.h"

#include "document/state/program.h"
#include "platform/platform.h"
#include "platform/shell.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace velmora {

namespace {

using Names = std::pair<std::string_view, std::string_view>;

constexpr auto kFolders =
    std::to_array<Names>({{"I", "en"}, {"F", "fr"}, {"P", "pt"}, {"T", "it"}});

constexpr auto kPages = std::to_array<Names>({
    {"Velmora", "ventana"},
    {"wininfo", "ventana"},
    {"winoptions", "ventana"},
    {"setup", "parametros"},
    {"New_Dat", "nueva"},
    {"seltexto", "nueva"},
    {"Scale_xy", "editar"},
    {"Mult_Ptos", "editar"},
    {"del_Npto", "editar"},
    {"Compensa", "editar"},
    {"importar", "importar"},
    {"ajuste", "dos_lados"},
    {"ajuste_opt", "dos_lados"},
    {"ver_corte", "ver_corte"},
    {"teclas", "teclas"},
    {"acerca", "index"},
});

/// What stands beside a name; empty for none.
std::string_view beside(std::span<const Names> table, std::string_view name) {
    const auto found = std::ranges::find(table, name, &Names::first);
    return found == table.end() ? std::string_view() : found->second;
}

// Results of the shell from here on mean that the program started.
constexpr int kStarted = 33;

} // namespace

std::string guide_language() {
    const std::string_view folder = beside(kFolders, state::program.Idioma);
    return std::string(folder.empty() ? "es" : folder);
}

std::string_view guide_page(std::string_view window) {
    return beside(kPages, window);
}

void open_guide_page(std::string_view window) {
    const std::string_view page = guide_page(window);
    if (page.empty())
        return;
    const std::string path = "help/" + guide_language() + "/" + std::string(page) + ".html";
    if (platform().shell.open(program_file(path)) < kStarted)
        platform().shell.open(program_file("velmora.chm"));
}

} // namespace velmora
