// What PrintPic puts on paper, by the toolkit's printer into a PDF file.
#include "adapters/qt/qt_printer.h"
#include "printing/printing_test.h"

#include <QFile>
#include <QPageSize>
#include <QPrinter>
#include <QTemporaryDir>

namespace velmora::test {

namespace {

using testing::IsEmpty;

class SheetTest : public PrintingTest {
  protected:
    SheetTest() {
        use(make_qt_printer([this] { return next_file(); }));
    }
    /// The sheet that was printed last.
    [[nodiscard]] PrintedSheet sheet() const { return PrintedSheet(file_); }
    [[nodiscard]] bool printed() const { return QFile::exists(file_); }

    QTemporaryDir folder_;
    QString place_ = folder_.path();
    QPageSize paper_{QPageSize::A4};

  private:
    std::unique_ptr<QPrinter> next_file() {
        file_ = place_ + QString("/%1.pdf").arg(++sheets_);
        auto device = std::make_unique<QPrinter>(QPrinter::HighResolution);
        device->setOutputFormat(QPrinter::PdfFormat);
        device->setOutputFileName(file_);
        device->setPageSize(paper_);
        return device;
    }
    QString file_;
    int sheets_ = 0;
};

TEST_F(SheetTest, a_tall_shape_stands_upright_with_axes_outline_and_a_circle_on_every_point) {
    print(kTall, True);
    const PrintedSheet page = sheet();
    page.keep("printed-tall");
    expect_tall(page);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SheetTest, a_wide_shape_turns_the_sheet) {
    print(kWide, True);
    const PrintedSheet page = sheet();
    page.keep("printed-wide");
    expect_wide(page);
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SheetTest, without_ShowPtosCtrl_nothing_is_red) {
    print(kTall, False);
    const PrintedSheet page = sheet();
    EXPECT_THAT(page.red_places(), IsEmpty());
    EXPECT_THAT(page.black_across(12002.5), StrokesAt(Strokes{500, 2905.8, 4820}));
}

// The origin is (5950, 8420); the corners are (3070, 12740), (7390, 12740) and (7390, 2660).
TEST_F(SheetTest, negatives_put_both_axes_through_the_middle) {
    print({{-2, -3}, {1, -3}, {1, 4}}, False);
    const PrintedSheet page = sheet();
    EXPECT_THAT(page.black_across(1000), StrokesAt(Strokes{5950}));
    EXPECT_THAT(page.black_down(100), StrokesAt(Strokes{8420}));
    EXPECT_THAT(page.black_across(10002.5), StrokesAt(Strokes{4243.2, 5950, 7390}));
    EXPECT_THAT(page.black_down(4002.5), StrokesAt(Strokes{8420, 10564.2, 12740}));
}

TEST_F(SheetTest, the_axes_go_by_the_paper_of_the_printer) {
    paper_ = QPageSize(QPageSize::Letter); // 12240 by 15840
    print({{-2, 1}, {1, 1}, {1, 4}}, False);
    const PrintedSheet page = sheet();
    EXPECT_EQ(page.size(), QSizeF(12240, 15840));
    EXPECT_THAT(page.black_across(1000), StrokesAt(Strokes{6120}));
    EXPECT_THAT(page.black_down(100), StrokesAt(Strokes{15340}));
}

// The slanted side comes from far above: it rises 0.9 to the right from (500, 11400).
TEST_F(SheetTest, a_shape_larger_than_the_sheet_is_cut_off_at_its_edge) {
    print({{0, 0}, {100, 0}, {100, 90}}, True);
    const PrintedSheet page = sheet();
    EXPECT_EQ(page.size(), QSizeF(16840, 11900));
    EXPECT_THAT(page.black_down(5002.5), StrokesAt(Strokes{7347.75, 11400}));
    EXPECT_THAT(page.black_down(16000), StrokesAt(Strokes{11400}));
    expect_circles_at(page, {{500, 11400}});
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SheetTest, a_place_far_beyond_the_printers_numbers_leaves_the_rest_right) {
    print({{0, 0}, {1e9, 0}, {1e9, 1e9}}, False);
    EXPECT_THAT(sheet().black_down(5002.5), StrokesAt(Strokes{16340 - 4502.5, 16340}));
    EXPECT_THAT(machine.dialogs.boxes, IsEmpty());
}

TEST_F(SheetTest, each_sheet_begins_empty_and_turned_its_own_way) {
    print(kTall, True);
    print(kWide, True);
    expect_wide(sheet());
    print(kTall, True);
    expect_tall(sheet());
}

TEST_F(SheetTest, a_sheet_that_was_left_open_does_not_come_with_the_next) {
    session.ZoomFactor = 1e300;
    print(kTall, False);
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_FALSE(printed());
    session.ZoomFactor = 1440;
    print(kTall, True);
    expect_tall(sheet());
    EXPECT_EQ(machine.dialogs.boxes.size(), 1U);
}

TEST_F(SheetTest, what_comes_behind_the_end_of_a_sheet_stands_on_the_next) {
    Printer& printer = *platform().printer;
    printer.set_Orientation(Orientation::landscape);
    printer.Line(5000, 0, 5000, 11900);
    printer.EndDoc();
    const PrintedSheet first = sheet();
    printer.Circle(3000, 4000, 30, 255);
    printer.EndDoc();
    const PrintedSheet second = sheet();
    EXPECT_THAT(first.black_across(1000), StrokesAt(Strokes{5000}));
    EXPECT_THAT(first.red_places(), IsEmpty());
    EXPECT_THAT(second.black_across(1000), IsEmpty());
    EXPECT_EQ(second.size(), QSizeF(16840, 11900));
    expect_circles_at(second, {{3000, 4000}});
}

TEST_F(SheetTest, an_empty_sheet_is_not_printed) {
    platform().printer->set_Orientation(Orientation::portrait);
    platform().printer->EndDoc();
    platform().printer->EndDoc();
    EXPECT_FALSE(printed());
}

TEST_F(SheetTest, a_printer_that_takes_nothing_is_told_of_by_its_number) {
    place_ = folder_.filePath("none");
    print(kTall, True);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0],
              (ShownBox{"Error PrintPic nº: 482  - Desc: Error de impresora", 0, "Velmora"}));
    EXPECT_FALSE(printed());
}

TEST_F(SheetTest, no_printer_is_told_of_by_the_same_number_and_counts_as_A4) {
    use(make_qt_printer([]() -> std::unique_ptr<QPrinter> { return nullptr; }));
    print({{-7, 1}, {7, 1}, {7, 3}}, True);
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text, "Error PrintPic nº: 482  - Desc: Error de impresora");
    EXPECT_EQ(session.CanvasX0, 8420);
    EXPECT_EQ(session.CanvasY0, 11400);
}

} // namespace

} // namespace velmora::test
