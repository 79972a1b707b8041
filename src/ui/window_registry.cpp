#include "ui/window_registry.h"

#include "ui/about_box.h"
#include "ui/ajuste_dialog.h"
#include "ui/ajuste_opt_dialog.h"
#include "ui/compensa_dialog.h"
#include "ui/del_npto_dialog.h"
#include "ui/importar_dialog.h"
#include "ui/info_panel.h"
#include "ui/intro_screen.h"
#include "ui/main_window.h"
#include "ui/mult_ptos_dialog.h"
#include "ui/new_dat_dialog.h"
#include "ui/options_panel.h"
#include "ui/scale_xy_dialog.h"
#include "ui/seltexto_dialog.h"
#include "ui/setup_dialog.h"
#include "ui/shortcut_list.h"
#include "ui/ver_corte_dialog.h"

#include <algorithm>
#include <array>

namespace velmora {

namespace {

struct Row {
    std::string_view name;
    std::unique_ptr<Window> (*make)(const Surroundings&);
};

template <class Made>
std::unique_ptr<Window> make(const Surroundings& around) {
    return std::make_unique<Made>(around.events);
}

template <class Made>
std::unique_ptr<Window> make_beside(const Surroundings& around) {
    return std::make_unique<Made>(around.events, around.beside);
}

std::unique_ptr<Window> make_intro(const Surroundings& around) {
    return std::make_unique<IntroScreen>(around.events, around.load);
}

std::unique_ptr<Window> make_main(const Surroundings& around) {
    return std::make_unique<MainWindow>(around.events, around.canvas);
}

constexpr auto kWindows = std::to_array<Row>({
    {"intro", make_intro},
    {"Velmora", make_main},
    {"wininfo", make_beside<InfoPanel>},
    {"winoptions", make_beside<OptionsPanel>},
    {"Scale_xy", make<ScaleXyDialog>},
    {"New_Dat", make<NewDatDialog>},
    {"del_Npto", make<DelNptoDialog>},
    {"Mult_Ptos", make<MultPtosDialog>},
    {"Compensa", make<CompensaDialog>},
    {"ajuste", make<AjusteDialog>},
    {"ajuste_opt", make<AjusteOptDialog>},
    {"seltexto", make<SeltextoDialog>},
    {"setup", make<SetupDialog>},
    {"teclas", make<ShortcutList>},
    {"acerca", make<AboutBox>},
    {"importar", make<ImportarDialog>},
    {"ver_corte", make<VerCorteDialog>},
});

} // namespace

std::unique_ptr<Window> make_window(std::string_view name, const Surroundings& around) {
    const auto found = std::ranges::find(kWindows, name, &Row::name);
    return found == kWindows.end() ? nullptr : found->make(around);
}

std::vector<std::string_view> window_names() {
    std::vector<std::string_view> names;
    for (const Row& row : kWindows)
        names.push_back(row.name);
    return names;
}

} // namespace velmora
