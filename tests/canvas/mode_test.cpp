#include "canvas/mode.h"

#include "document/session.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(CanvasModeTest, the_first_flag_wins) {
    struct Case {
        Flag move, insert, no_redraw;
        CanvasMode mode;
    };
    for (const Case& c : {Case{False, False, False, CanvasMode::picks_points},
                          Case{False, False, True, CanvasMode::shows_nothing},
                          Case{False, True, False, CanvasMode::adds_points},
                          Case{False, True, True, CanvasMode::adds_points},
                          Case{True, False, True, CanvasMode::moves_shape},
                          Case{True, True, True, CanvasMode::moves_shape}}) {
        reset_session();
        session.MoveShapeMode = c.move;
        session.PtosToInsertMode = c.insert;
        session.NoRedraw = c.no_redraw;
        EXPECT_EQ(canvas_mode(), c.mode) << c.move << c.insert << c.no_redraw;
    }
    reset_session();
}

} // namespace
} // namespace velmora
