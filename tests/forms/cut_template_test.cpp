#include "forms/ver_corte.h"

#include "document/session.h"
#include "fakes/recording_platform.h"
#include "platform/dialogs.h"
#include "support/outline.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

/// Squares of 25 and 10 at the towers, of 20 and 15 at the faces.
class CutTemplateTest : public testing::Test {
  protected:
    void load(double size = 1) {
        const double one = 25 * size;
        const double other = 10 * size;
        test::fill(session.PtosA2,
                   {{0, 0, 1, 0}, {one, 0, 0, 0}, {one, one, 0, 0}, {0, one, 0, 0}});
        test::fill(session.PtosB2,
                   {{0, 0, 1, 0}, {other, 0, 0, 0}, {other, other, 0, 0}, {0, other, 0, 0}});
        session.OptX = session.OptY = 0;
        session.OptZ = 100;
        ver_corte_Load();
    }
    /// What the toolkit is asked to make of it.
    void save_pdf() {
        ver_corte_pdf_Click([this](const cutting::SheetLayout& layout) {
            sheets_ = layout.sheets.size();
            width_ = layout.width;
            return std::string("%PDF");
        });
    }

    test::RecordingPlatform platform_{test::with_database};
    VerCorteWindow& window_ = session.ver_corte;
    std::size_t sheets_ = 0;
    double width_ = 0;
};

TEST_F(CutTemplateTest, a_small_piece_goes_on_one_sheet) {
    load();
    platform_.dialogs.paths = {platform_.path("ala")};
    save_pdf();
    EXPECT_EQ(sheets_, 1U);
    EXPECT_DOUBLE_EQ(width_, 210);
    EXPECT_EQ(platform_.read(platform_.path("ala.pdf")), "%PDF");
    EXPECT_EQ(window_.lbl_written, "Guardado: ala.pdf, hojas: 1");
}

// 400 mm on sheets that show 190 by 277 and share 10: three beside and two over one another.
TEST_F(CutTemplateTest, a_large_piece_is_tiled) {
    load(20);
    platform_.dialogs.paths = {platform_.path("ala.pdf")};
    save_pdf();
    EXPECT_GE(sheets_, 4U);
    EXPECT_THAT(window_.lbl_written, HasSubstr("hojas: " + std::to_string(sheets_)));
}

TEST_F(CutTemplateTest, an_svg_is_one_sheet_with_what_was_ticked) {
    load(20);
    platform_.dialogs.paths = {platform_.path("ala.svg")};
    ver_corte_svg_Click();
    const std::string plain = platform_.read(platform_.path("ala.svg"));
    EXPECT_THAT(plain, HasSubstr("<svg"));
    EXPECT_EQ(window_.lbl_written, "Guardado: ala.svg, hojas: 1");
    window_.Chk_Points = true;
    platform_.dialogs.paths = {platform_.path("puntos.svg")};
    ver_corte_svg_Click();
    EXPECT_GT(platform_.read(platform_.path("puntos.svg")).size(), plain.size());
}

TEST_F(CutTemplateTest, a_cancelled_dialog_writes_nothing) {
    load();
    save_pdf();
    ver_corte_svg_Click();
    EXPECT_EQ(sheets_, 0U);
    EXPECT_THAT(platform_.dialogs.save_calls, SizeIs(2));
    EXPECT_THAT(platform_.dialogs.boxes, IsEmpty());
    EXPECT_EQ(window_.lbl_written, "");
}

TEST_F(CutTemplateTest, what_can_not_be_laid_out_is_told_before_a_place_is_asked_for) {
    ver_corte_Load();
    save_pdf();
    load(1e6);
    ver_corte_svg_Click();
    save_pdf();
    ASSERT_FALSE(platform_.dialogs.boxes.empty());
    EXPECT_EQ(platform_.dialogs.boxes.front().text, "No hay contornos para la plantilla.");
    EXPECT_EQ(platform_.dialogs.boxes.back().text, "La plantilla ocuparía demasiadas hojas.");
    EXPECT_EQ(sheets_, 0U);
}

} // namespace
} // namespace velmora
