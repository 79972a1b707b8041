// A session with a CAD in another process, on the bus that the tests run on.
#pragma once

#include "adapters/dbus/dbus_cad.h"
#include "cad/connection.h"
#include "document/session.h"
#include "support/recording_platform.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <initializer_list>

namespace velmora::test {

/// The server's process, for the life of this.
class RemoteCad {
  public:
    RemoteCad();
    ~RemoteCad();

    void say(const QString& line);
    [[nodiscard]] QStringList ask(const QString& about);
    /// Ends the process at once, as a crash does.
    void kill();
    /// Stops it: it lives and answers nothing.
    void freeze() const;
    void thaw() const;

  private:
    QProcess process_;
};

struct RemoteCadSession : testing::Test {
    RemoteCadSession();
    ~RemoteCadSession() override { acad() = {}; }

    RecordingPlatform machine;
    std::unique_ptr<Autocad> cad = make_dbus_cad(
        {.to_attach = std::chrono::milliseconds(300), .to_answer = std::chrono::milliseconds(500)});
    std::unique_ptr<RemoteCad> remote;

    void start_cad(std::initializer_list<const char*> lines = {});
    /// A connected CAD with a drawing of these entities.
    void open_drawing(std::initializer_list<const char*> entities);
    [[nodiscard]] std::vector<std::string> shown_texts() const;
};

} // namespace velmora::test
