// A session with a CAD in another process.
#pragma once

#include "adapters/dbus/dbus_cad.h"
#include "cad/connection.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "remote_cad.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace velmora::test {

struct RemoteCadSession : testing::Test {
    RemoteCadSession();
    ~RemoteCadSession() override { acad() = {}; }

    RecordingPlatform machine{with_database};
    std::unique_ptr<Autocad> cad = make_dbus_cad(
        {.to_attach = std::chrono::milliseconds(300), .to_answer = std::chrono::milliseconds(500)});
    std::unique_ptr<RemoteCad> remote;

    void start_cad(std::initializer_list<const char*> lines = {});
    /// A connected CAD with a drawing of these entities.
    void open_drawing(std::initializer_list<const char*> entities);
    [[nodiscard]] std::vector<std::string> shown_texts() const;
};

} // namespace velmora::test
