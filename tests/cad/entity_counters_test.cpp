#include "cad/entity_counters.h"

#include "document/session.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

std::vector<std::int32_t> counters() {
    return {session.NLines, session.NSplines, session.NLWPolylines, session.NArcs,
            session.NCircles};
}

std::string boxes() {
    const WinInfo& info = session.wininfo;
    return info.TxtNlines + info.TxtNSplines + info.TxtNLWPolylines + info.TxtNArcs +
           info.TxtNCircles;
}

struct EntityCounters : testing::Test {
    EntityCounters() {
        reset_session();
        for (const TipoCad kind : {TipoCad::AcDbLine, TipoCad::AcDbPoint, TipoCad::AcDbSpline,
                                   TipoCad::AcDbPolyline, TipoCad::AcDbArc, TipoCad::AcDbCircle})
            count_entity(kind, 6);
    }
    ~EntityCounters() override { reset_session(); }
};

TEST_F(EntityCounters, points_count_as_lines) {
    EXPECT_EQ(counters(), (std::vector<std::int32_t>{2, 1, 1, 1, 1}));
    EXPECT_EQ(boxes(), "21111");
    EXPECT_EQ(session.TotalObjs, 6);
    EXPECT_EQ(session.wininfo.TxtProcesed, "6");
}

TEST_F(EntityCounters, a_reset_leaves_the_boxes_until_an_entity_comes) {
    reset_entity_counters();
    EXPECT_EQ(counters(), std::vector<std::int32_t>(5, 0));
    EXPECT_EQ(session.TotalObjs, 0);
    EXPECT_EQ(boxes() + session.wininfo.TxtProcesed, "211116");
    count_entity(TipoCad::AcDbArc, 1);
    EXPECT_EQ(boxes() + session.wininfo.TxtProcesed, "211111");
}

TEST_F(EntityCounters, cleared_boxes_leave_the_counters) {
    clear_entity_boxes();
    EXPECT_EQ(boxes() + session.wininfo.TxtProcesed, "000000");
    EXPECT_EQ(counters(), (std::vector<std::int32_t>{2, 1, 1, 1, 1}));
    EXPECT_EQ(session.TotalObjs, 6);
}

TEST_F(EntityCounters, cleared_counts_leave_the_total_taken) {
    clear_entity_counts();
    EXPECT_EQ(counters(), std::vector<std::int32_t>(5, 0));
    EXPECT_EQ(boxes(), "00000");
    EXPECT_EQ(session.TotalObjs, 6);
    EXPECT_EQ(session.wininfo.TxtProcesed, "6");
}

} // namespace
} // namespace velmora
