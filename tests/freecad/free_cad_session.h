// A session with a real FreeCAD, one for the tests of a suite.
#pragma once

#include "adapters/dbus/dbus_cad.h"
#include "cad/connection.h"
#include "commands/handlers.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "free_cad.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace velmora::test {

struct FreeCadSession : testing::Test {
    static void SetUpTestSuite() { started = std::make_unique<FreeCad>(); }
    static void TearDownTestSuite() { started.reset(); }

    FreeCadSession() {
        put_in_place(*cad);
        session.program_folder = machine.folder.string();
        session.winoptions.TxtPutArc = "7";
        session.winoptions.TxtPutCircle = "12";
        session.RedimCapture = False;
        session.Precision = 15;
    }
    ~FreeCadSession() override {
        acad() = {};
        if (started->is_running())
            look("close_all()");
    }

    static QJsonValue look(const QString& expression) { return started->evaluate(expression); }
    static std::vector<std::string> labels(const QString& expression) {
        std::vector<std::string> all;
        for (const auto& label : look(expression).toArray())
            all.push_back(label.toString().toStdString());
        return all;
    }
    static void open(const QString& drawing) {
        look(drawing);
        mnu_Reconect();
    }
    [[nodiscard]] std::vector<std::string> shown_texts() const {
        std::vector<std::string> texts;
        for (const auto& box : machine.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }

    RecordingPlatform machine{with_database};
    std::unique_ptr<Autocad> cad = make_dbus_cad();
    static inline std::unique_ptr<FreeCad> started;
};

} // namespace velmora::test
