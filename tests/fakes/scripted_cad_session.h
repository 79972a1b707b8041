// A session with a scripted CAD: what runs and what its drawing holds, by the lines of scenarios.
#pragma once

#include "cad/connection.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "script/words.h"
#include "scripted/cad.h"
#include "scripted/cad_lines.h"
#include "support/outline.h"

#include <gtest/gtest.h>
#include <initializer_list>

namespace velmora::test {

struct ScriptedCadSession : testing::Test {
    ScriptedCadSession() {
        put_in_place(cad);
        session.winoptions.TxtPutArc = "3";
        session.winoptions.TxtPutCircle = "4";
        state.no_pick = [] {
            throw std::logic_error("GetPoint found no pick");
        };
    }
    ~ScriptedCadSession() override { acad() = {}; }

    RecordingPlatform machine;
    driver::CadState state;
    driver::ScriptedCad cad{state};

    void say(std::initializer_list<const char*> lines) {
        for (const char* line : lines)
            driver::cad_line(state, driver::split_words(line));
    }
    /// A connected application with a drawing of these entities.
    void open_drawing(std::initializer_list<const char*> entities) {
        say({"running AutoCAD 15.0", "document Ala.dwg"});
        say(entities);
        ReconectaAcad();
    }
    [[nodiscard]] int colour(std::size_t index) const {
        return state.application->active->model_space.at(index)->color;
    }
    [[nodiscard]] std::vector<std::string> shown_texts() const {
        std::vector<std::string> texts;
        for (const ShownBox& box : machine.dialogs.boxes)
            texts.push_back(box.text);
        return texts;
    }
};

} // namespace velmora::test
