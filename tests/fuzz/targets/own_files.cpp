// The program's own files beside it: the language database, settings, addresses.
#include "adapters/sqlite/sqlite_database.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fuzz/stage.h"
#include "fuzz/target.h"
#include "fuzz/targets.h"
#include "platform/database.h"
#include "services/deployment.h"
#include "services/messages.h"
#include "services/settings.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace velmora::fuzz {

namespace {

void read_all_rows(Database& database) {
    answer([&] {
        const auto rows = database.open_recordset("SELECT * FROM Mensajes ORDER BY CodMensaje",
                                                  Access::read_only);
        for (int count = 0; count < 100 && !rows->eof(); ++count) {
            (void)text_of(rows->field("Descripcion"));
            rows->move_next();
        }
    });
}

void look_up_messages() {
    for (const int code : {1, 37, 99, 100}) {
        answer([&] { (void)GetMensaje(code); });
        answer([&] { (void)MuestraMensaje(code); });
    }
}

} // namespace

void language_database(std::string_view bytes) {
    auto& machine = fresh_stage();
    const auto database = make_sqlite_database();
    close_messages();
    test::put_in_place(*database);
    const std::string path = machine.write("other.mdb", bytes);
    answer([&] { database->open(path); });
    if (database->is_open()) {
        look_up_messages();
        read_all_rows(*database);
        answer([&] { database->execute("INSERT INTO TEMP_AJUSTE VALUES (1, 2, 3, 4, 'Z')"); });
    }
    close_messages();
    test::put_in_place(*machine.database);
}

void settings(std::string_view bytes) {
    auto& machine = fresh_stage();
    while (!bytes.empty()) {
        const std::string_view line = bytes.substr(0, bytes.find('\n'));
        bytes.remove_prefix(std::min(line.size() + 1, bytes.size()));
        const std::size_t slash = line.find('/');
        const std::size_t equals = line.find('=');
        if (slash == std::string_view::npos || equals == std::string_view::npos || slash > equals)
            continue;
        machine.settings.save(line.substr(0, slash), line.substr(slash + 1, equals - slash - 1),
                              line.substr(equals + 1));
    }
    bool read = false;
    answer([&] {
        LeeSettings();
        read = true;
    });
    if (!read)
        return;
    // What was read is stored in a form that is read again.
    GuardaSettings();
    const auto stored = machine.settings.values;
    LeeSettings();
    GuardaSettings();
    promise(machine.settings.values == stored, "settings that were stored are read back");
}

void deployment(std::string_view bytes) {
    std::istringstream lines{std::string(bytes)};
    const Deployment read = read_deployment(lines);
    promise(read.support_address.find('\n') == std::string::npos, "an address is one line");
}

} // namespace velmora::fuzz
