// The dispatcher: what goes into the session before a handler and into the windows after it,
// faults, modal windows, the end of the program.
#include "windows/windows_test.h"

#include <QDialog>
#include <QLineEdit>
#include <QTimer>
#include <gmock/gmock.h>
#include <new>
#include <stdexcept>

namespace velmora::test {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class HostTest : public WindowsTest {
  protected:
    void SetUp() override {
        start_program();
        told.clear();
        dialogs().boxes.clear();
    }
    QLineEdit& box(std::string_view name) { return control<QLineEdit>("Velmora", name); }
    void run(const std::function<void()>& handler) { windows().run(handler); }
    /// Carried out when the windows next get time, on top of a modal window too.
    static void later(std::function<void()> step) { QTimer::singleShot(0, std::move(step)); }
};

TEST_F(HostTest, typed_text_is_in_the_session_when_a_handler_runs) {
    box("TxtDescDat").setText("ala");
    std::string seen;
    run([&] { seen = session.Velmora.TxtDescDat; });
    EXPECT_EQ(seen, "ala");
}

TEST_F(HostTest, what_a_handler_wrote_is_shown_behind_it) {
    run([] { session.Velmora.TxtDat_File = "/tmp/ala.dat"; });
    EXPECT_EQ(box("TxtDat_File").text(), "/tmp/ala.dat");
}

TEST_F(HostTest, an_older_text_on_the_screen_does_not_undo_what_a_running_handler_wrote) {
    run([this] {
        session.Velmora.TxtDat_File = "neu.dat";
        run([] {}); // an event that comes in while the handler yields
        EXPECT_EQ(session.Velmora.TxtDat_File, "neu.dat");
    });
}

TEST_F(HostTest, refresh_takes_typed_text_and_shows_the_rest) {
    box("TxtDescDat").setText("typed");
    session.Velmora.TxtDat_File = "set.dat";
    windows().refresh();
    EXPECT_EQ(session.Velmora.TxtDescDat, "typed");
    EXPECT_EQ(box("TxtDat_File").text(), "set.dat");
}

TEST_F(HostTest, faults_are_told_with_their_numbers) {
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] { raise(error::subscript); }, "fault 9"},
        {[] { throw std::bad_alloc(); }, "fault 7"},
        {[] { throw std::runtime_error("other"); }, "fault 51"},
    };
    for (const auto& [handler, expected] : cases) {
        told.clear();
        run(handler);
        EXPECT_THAT(told, ElementsAre(expected));
        restart();
    }
}

TEST_F(HostTest, a_fault_with_nobody_watching_is_reported_and_nothing_runs_after_it) {
    windows().events.fault = {};
    run([] { raise(error::overflow, "Desbordamiento"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento", 16, "Velmora"}));
    bool ran = false;
    run([&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST_F(HostTest, a_handler_that_fails_alone_is_told_and_the_program_goes_on) {
    const std::pair<std::function<void()>, const char*> cases[] = {
        {[] { raise(error::subscript); }, "stopped 9"},
        {[] { throw std::bad_alloc(); }, "stopped 7"},
        {[] { throw std::runtime_error("other"); }, "stopped 51"},
    };
    for (const auto& [handler, expected] : cases) {
        told.clear();
        windows().run_alone(handler);
        EXPECT_THAT(told, ElementsAre(expected));
        bool ran = false;
        run([&] { ran = true; });
        EXPECT_TRUE(ran) << expected;
    }
}

TEST_F(HostTest, a_handler_that_fails_alone_has_the_report_of_every_fault) {
    windows().events.stopped = {};
    windows().run_alone([] { raise(error::overflow, "Desbordamiento"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento", 16, "Velmora"}));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(HostTest, the_end_of_the_program_goes_through_a_handler_that_fails_alone) {
    windows().run_alone([this] {
        later([this] { run([this] { windows().end_program(); }); });
        windows().wait(1);
        told.emplace_back("went on");
    });
    EXPECT_THAT(told, ElementsAre("ended"));
}

TEST_F(HostTest, the_report_names_what_the_user_has_to_mend) {
    windows().events.fault = {};
    run([] {
        RuntimeError failure(error::overflow, "Desbordamiento");
        failure.place = "Values/Def_Dec=9999999999";
        throw failure;
    });
    ASSERT_EQ(dialogs().boxes.size(), 2U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento\nValues/Def_Dec=9999999999", 16,
                        "Velmora"}));
    EXPECT_EQ(
        dialogs().boxes[1],
        (ShownBox{"¿Deseas que Velmora use desde ahora el valor por defecto de este parámetro?"
                  "\n\nDef_Dec = 6",
                  36, "Velmora"}));
}

TEST_F(HostTest, the_report_says_first_that_the_shape_is_kept_and_where) {
    Forma.Pto.redim(2);
    Forma.Pto[1].X = 4;
    windows().events.fault = {};
    run([] { raise(error::disk_full, "Disco lleno"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0].text, "La forma está a salvo. Se ha guardado en:\n" +
                                           program_file("recuperado.dat") +
                                           "\n\nRun-time error '61':\n\nDisco lleno");
}

TEST_F(HostTest, a_fault_above_a_modal_window_unwinds_the_handler_that_waits) {
    bool went_on = false;
    later([this] { run([] { raise(error::type_mismatch); }); });
    run([&] {
        windows().show_modal("Scale_xy");
        went_on = true;
    });
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "fault 13"));
    EXPECT_FALSE(went_on);
}

TEST_F(HostTest, a_modal_window_holds_its_handler_until_it_is_unloaded) {
    std::vector<std::string> steps;
    later([&] {
        steps.emplace_back(windows().idle() ? "idle" : "busy");
        run([&] {
            steps.emplace_back(windows().idle() ? "idle" : "busy");
            windows().unload("Scale_xy");
        });
    });
    run([&] {
        windows().show_modal("Scale_xy");
        steps.emplace_back("behind");
    });
    EXPECT_THAT(steps, ElementsAre("idle", "busy", "behind"));
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "closed Scale_xy"));
    EXPECT_TRUE(windows().idle());
    EXPECT_EQ(window("Scale_xy"), nullptr);
}

TEST_F(HostTest, the_close_box_unloads_a_modal_window) {
    later([this] { window("Scale_xy")->close(); });
    run([this] { windows().show_modal("Scale_xy"); });
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "closed Scale_xy"));
}

TEST_F(HostTest, esc_is_the_close_box_of_a_dialog) {
    later([this] { qobject_cast<QDialog*>(window("Scale_xy"))->reject(); });
    run([this] { windows().show_modal("Scale_xy"); });
    EXPECT_THAT(told, Contains("closed Scale_xy"));
}

TEST_F(HostTest, the_main_windows_close_box_ends_the_program_without_a_question) {
    window("Velmora")->close();
    EXPECT_THAT(told,
                ElementsAre("closed winoptions", "closed wininfo", "closed Velmora", "ended"));
    EXPECT_THAT(dialogs().boxes, IsEmpty());
}

TEST_F(HostTest, the_program_ends_when_the_handler_that_ends_it_has_returned) {
    run([this] {
        windows().end_program();
        told.emplace_back("still running");
        windows().yield();
        told.emplace_back("yielded");
    });
    EXPECT_THAT(told, ElementsAre("still running", "yielded", "ended"));
}

TEST_F(HostTest, an_end_inside_a_yield_unwinds_the_handler_that_yields) {
    run([this] {
        later([this] { run([this] { windows().end_program(); }); });
        windows().wait(1);
        told.emplace_back("went on");
    });
    EXPECT_THAT(told, ElementsAre("ended"));
}

TEST_F(HostTest, a_yield_lets_events_run_and_shows_the_session) {
    bool ran = false;
    run([&] {
        later([&] { ran = true; });
        session.Velmora.TxtDescDat = "progress";
        windows().wait(20); // past the interval of the yield before
        windows().yield();
        EXPECT_EQ(box("TxtDescDat").text(), "progress");
    });
    EXPECT_TRUE(ran);
}

TEST_F(HostTest, unloading_what_is_not_loaded_does_nothing) {
    run([this] { windows().unload("Scale_xy"); });
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(HostTest, a_window_that_nobody_has_is_a_fault) {
    run([this] { windows().show("nobody"); });
    EXPECT_THAT(told, ElementsAre("fault 424"));
}

TEST_F(HostTest, status_and_pointer_are_told_at_once) {
    windows().events.status = [this](const std::string& text) {
        told.push_back("status " + text);
    };
    windows().events.pointer = [this](int shape) {
        told.push_back("pointer " + std::to_string(shape));
    };
    run([this] {
        session.Velmora.StatusBar1 = "Cargando";
        windows().status_changed();
        session.Velmora.MousePointer = 11;
        windows().pointer_changed();
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
        session.Velmora.MousePointer = 0;
        windows().pointer_changed();
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    });
    EXPECT_THAT(told, ElementsAre("status Cargando", "pointer 11", "pointer 0"));
}

TEST_F(HostTest, a_window_is_unloaded_from_its_own_controls_event) {
    later([this] { control<QAbstractButton>("Scale_xy", "cmd_cancel").click(); });
    run([this] { windows().show_modal("Scale_xy"); });
    settle();
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "closed Scale_xy"));
}

} // namespace

} // namespace velmora::test
