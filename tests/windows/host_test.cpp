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

TEST_F(HostTest, TypedTextIsInTheSessionWhenAHandlerRuns) {
    box("TxtDescDat").setText("ala");
    std::string seen;
    run([&] { seen = session.Velmora.TxtDescDat; });
    EXPECT_EQ(seen, "ala");
}

TEST_F(HostTest, WhatAHandlerWroteIsShownBehindIt) {
    run([] { session.Velmora.TxtDat_File = "/tmp/ala.dat"; });
    EXPECT_EQ(box("TxtDat_File").text(), "/tmp/ala.dat");
}

TEST_F(HostTest, AnOlderTextOnTheScreenDoesNotUndoWhatARunningHandlerWrote) {
    run([this] {
        session.Velmora.TxtDat_File = "neu.dat";
        run([] {}); // an event that comes in while the handler yields
        EXPECT_EQ(session.Velmora.TxtDat_File, "neu.dat");
    });
}

TEST_F(HostTest, RefreshTakesTypedTextAndShowsTheRest) {
    box("TxtDescDat").setText("typed");
    session.Velmora.TxtDat_File = "set.dat";
    windows().refresh();
    EXPECT_EQ(session.Velmora.TxtDescDat, "typed");
    EXPECT_EQ(box("TxtDat_File").text(), "set.dat");
}

TEST_F(HostTest, FaultsAreToldWithTheirNumbers) {
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

TEST_F(HostTest, AFaultWithNobodyWatchingIsReportedAndNothingRunsAfterIt) {
    windows().events.fault = {};
    run([] { raise(error::overflow, "Desbordamiento"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento", 16, "Velmora"}));
    bool ran = false;
    run([&] { ran = true; });
    EXPECT_FALSE(ran);
}

TEST_F(HostTest, AHandlerThatFailsAloneIsToldAndTheProgramGoesOn) {
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

TEST_F(HostTest, AHandlerThatFailsAloneHasTheReportOfEveryFault) {
    windows().events.stopped = {};
    windows().run_alone([] { raise(error::overflow, "Desbordamiento"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento", 16, "Velmora"}));
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(HostTest, TheEndOfTheProgramGoesThroughAHandlerThatFailsAlone) {
    windows().run_alone([this] {
        later([this] { run([this] { windows().end_program(); }); });
        windows().wait(1);
        told.emplace_back("went on");
    });
    EXPECT_THAT(told, ElementsAre("ended"));
}

TEST_F(HostTest, TheReportNamesWhatTheUserHasToMend) {
    windows().events.fault = {};
    run([] {
        RuntimeError failure(error::overflow, "Desbordamiento");
        failure.place = "Values/Def_Dec=9999999999";
        throw failure;
    });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0],
              (ShownBox{"Run-time error '6':\n\nDesbordamiento\nValues/Def_Dec=9999999999", 16,
                        "Velmora"}));
}

TEST_F(HostTest, TheReportSaysFirstThatTheShapeIsKeptAndWhere) {
    Forma.Pto.redim(2);
    Forma.Pto[1].X = 4;
    windows().events.fault = {};
    run([] { raise(error::disk_full, "Disco lleno"); });
    ASSERT_EQ(dialogs().boxes.size(), 1U);
    EXPECT_EQ(dialogs().boxes[0].text, "La forma está a salvo. Se ha guardado en:\n" +
                                           program_file("recuperado.dat") +
                                           "\n\nRun-time error '61':\n\nDisco lleno");
}

TEST_F(HostTest, AFaultAboveAModalWindowUnwindsTheHandlerThatWaits) {
    bool went_on = false;
    later([this] { run([] { raise(error::type_mismatch); }); });
    run([&] {
        windows().show_modal("Scale_xy");
        went_on = true;
    });
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "fault 13"));
    EXPECT_FALSE(went_on);
}

TEST_F(HostTest, AModalWindowHoldsItsHandlerUntilItIsUnloaded) {
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

TEST_F(HostTest, TheCloseBoxUnloadsAModalWindow) {
    later([this] { window("Scale_xy")->close(); });
    run([this] { windows().show_modal("Scale_xy"); });
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "closed Scale_xy"));
}

TEST_F(HostTest, EscIsTheCloseBoxOfADialog) {
    later([this] { qobject_cast<QDialog*>(window("Scale_xy"))->reject(); });
    run([this] { windows().show_modal("Scale_xy"); });
    EXPECT_THAT(told, Contains("closed Scale_xy"));
}

TEST_F(HostTest, TheMainWindowsCloseBoxEndsTheProgramWithoutAQuestion) {
    window("Velmora")->close();
    EXPECT_THAT(told,
                ElementsAre("closed winoptions", "closed wininfo", "closed Velmora", "ended"));
    EXPECT_THAT(dialogs().boxes, IsEmpty());
}

TEST_F(HostTest, TheProgramEndsWhenTheHandlerThatEndsItHasReturned) {
    run([this] {
        windows().end_program();
        told.emplace_back("still running");
        windows().yield();
        told.emplace_back("yielded");
    });
    EXPECT_THAT(told, ElementsAre("still running", "yielded", "ended"));
}

TEST_F(HostTest, AnEndInsideAYieldUnwindsTheHandlerThatYields) {
    run([this] {
        later([this] { run([this] { windows().end_program(); }); });
        windows().wait(1);
        told.emplace_back("went on");
    });
    EXPECT_THAT(told, ElementsAre("ended"));
}

TEST_F(HostTest, AYieldLetsEventsRunAndShowsTheSession) {
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

TEST_F(HostTest, UnloadingWhatIsNotLoadedDoesNothing) {
    run([this] { windows().unload("Scale_xy"); });
    EXPECT_THAT(told, IsEmpty());
}

TEST_F(HostTest, AWindowThatNobodyHasIsAFault) {
    run([this] { windows().show("nobody"); });
    EXPECT_THAT(told, ElementsAre("fault 424"));
}

TEST_F(HostTest, StatusAndPointerAreToldAtOnce) {
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

TEST_F(HostTest, AWindowIsUnloadedFromItsOwnControlsEvent) {
    later([this] { control<QAbstractButton>("Scale_xy", "cmd_cancel").click(); });
    run([this] { windows().show_modal("Scale_xy"); });
    settle();
    EXPECT_THAT(told, ElementsAre("open Scale_xy", "closed Scale_xy"));
}

} // namespace

} // namespace velmora::test
