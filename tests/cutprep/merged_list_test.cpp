#include "cutprep/merged_list.h"

#include "adapters/sqlite/sqlite_database.h"
#include "support/error_number.h"
#include "workbench.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;

struct MergedListTest : testing::Test, test::Workbench {
    MergedListTest() {
        machine.open_database();
        set_sides({{0, 0, 1}, {4, 0}, {4, 4}}, {{0, 0, 1}, {4, 0}, {4, 4}, {0, 4}});
        execute("INSERT INTO TEMP_AJUSTE VALUES (1, 2, 3, 4, 'Z')");
    }
    static void execute(std::string_view statement) { platform().database.execute(statement); }
    static std::int64_t rows_where(const std::string& condition) {
        const auto rows = platform().database.open_recordset(
            "SELECT count(*) AS n FROM TEMP_AJUSTE WHERE " + condition, Access::read_only);
        return std::get<std::int64_t>(rows->field("n"));
    }
    /// A transaction begins only where none is open.
    static void expect_no_transaction() {
        EXPECT_EQ(number_of([] { execute("BEGIN"); }), 0);
        execute("ROLLBACK");
    }
    static void expect_former_rows() {
        EXPECT_EQ(rows_where("LADO = 'Z'"), 1);
        EXPECT_EQ(rows_where("1"), 1);
    }
};

TEST_F(MergedListTest, a_pass_empties_the_table_and_adds_all_points_but_the_other_sides_first) {
    AdjustedSide A("A");
    AdjustedSide B("B");
    A.Tramo.redim(2);
    B.Tramo.redim(1);
    A.Tramo[1] = {.Longitud = 9, .PosPercent = 50, .X = 3, .Y = 4};
    A.Tramo[2].PosPercent = 100;
    B.Tramo[1].PosPercent = 100;
    fill_merged_list(A, B);
    EXPECT_EQ(rows_where("1"), 4);
    EXPECT_EQ(rows_where("LADO = 'A' AND ORDEN = 1 AND POS_PERCENT = 50 AND COORD_X = 3 AND "
                         "COORD_Y = 4"),
              1);
    EXPECT_EQ(rows_where("LADO = 'B' AND ORDEN = 1 AND POS_PERCENT = 100"), 1);

    MergedList rows;
    EXPECT_TRUE(rows.belongs_to("A"));
    EXPECT_FALSE(rows.belongs_to("B"));
    EXPECT_EQ(rows.orden(), 0);
    rows.next();
    EXPECT_EQ(rows.X(), 3);
    EXPECT_EQ(rows.Y(), 4);
    EXPECT_EQ(rows.orden(), 1);
    rows.next();
    EXPECT_TRUE(rows.belongs_to("A")); // added first, among rows at 100
    rows.next();
    EXPECT_FALSE(rows.at_end());
    rows.next();
    EXPECT_TRUE(rows.at_end());
    expect_no_transaction();
}

TEST_F(MergedListTest, the_table_must_be_there) {
    execute("DROP TABLE TEMP_AJUSTE");
    EXPECT_EQ(number_of(adjust), error::table_not_found);
    expect_no_transaction();
}

TEST_F(MergedListTest, the_database_must_be_open) {
    platform().database.close();
    EXPECT_EQ(number_of(adjust), error::object_not_set);
}

TEST_F(MergedListTest, a_database_that_may_not_be_written_raises_3027) {
    execute("PRAGMA query_only = 1");
    EXPECT_EQ(number_of(adjust), error::database_read_only);
    expect_no_transaction();
    expect_former_rows();
}

TEST_F(MergedListTest, a_database_that_another_program_has_locked_raises_3008) {
    const auto other = make_sqlite_database();
    other->open(machine.path("VELMORA.MDB"));
    other->execute("BEGIN IMMEDIATE");
    EXPECT_EQ(number_of(adjust), error::database_locked);
    other->close();
    expect_no_transaction();
    expect_former_rows();
}

#ifdef __linux__
TEST_F(MergedListTest, a_folder_that_takes_no_journal_raises_3051) {
    // What a folder that may not be written is to the database; a folder's own rights would not
    // stop an administrator.
    std::filesystem::create_symlink("/missing/folder/journal", machine.path("VELMORA.MDB-journal"));
    EXPECT_EQ(number_of(adjust), error::database_not_opened);
    std::filesystem::remove(machine.path("VELMORA.MDB-journal"));
    expect_no_transaction();
    expect_former_rows();
}
#endif

TEST_F(MergedListTest, a_disk_that_fills_up_raises_61_and_leaves_the_files_of_the_user_alone) {
    machine.write("raiz2.DAT", "de antes");
    test::Points A(3000);
    for (std::size_t i = 0; i < A.size(); ++i)
        A[i] = {.X = static_cast<double>(i), .Y = i % 2 == 0 ? 1.0 : 2.0};
    A[0].Sinc = 1;
    set_sides(A, {{0, 0, 1}, {4, 0}, {4, 4}});
    execute("PRAGMA max_page_count = 1"); // no more than there are
    EXPECT_EQ(number_of(adjust), error::disk_full);
    expect_no_transaction();
    expect_former_rows();
    EXPECT_EQ(test::RecordingPlatform::read(machine.path("raiz2.DAT")), "de antes");
    EXPECT_FALSE(std::filesystem::exists(machine.path("punta2.DAT")));
}

TEST_F(MergedListTest, a_fault_in_the_middle_leaves_the_table_as_it_was) {
    execute("CREATE TRIGGER fault BEFORE INSERT ON TEMP_AJUSTE WHEN NEW.ORDEN = 2 "
            "BEGIN SELECT RAISE(ABORT, 'full'); END");
    EXPECT_NE(number_of(adjust), 0);
    expect_no_transaction();
    expect_former_rows();
}

TEST_F(MergedListTest, a_table_without_one_of_the_fields_raises_3265) {
    execute("ALTER TABLE TEMP_AJUSTE RENAME COLUMN POS_PERCENT TO POSICION");
    EXPECT_EQ(number_of(adjust), error::item_not_found);
    expect_no_transaction();
    EXPECT_EQ(rows_where("LADO = 'Z'"), 1);
}

TEST_F(MergedListTest, whole_numbers_and_texts_in_the_fields_are_taken_for_their_value) {
    execute("DROP TABLE TEMP_AJUSTE");
    execute("CREATE TABLE TEMP_AJUSTE (COORD_X INTEGER, COORD_Y TEXT, ORDEN DOUBLE, "
            "POS_PERCENT DOUBLE, LADO TEXT(1))");
    execute("INSERT INTO TEMP_AJUSTE VALUES (7, '2.5', 3.0, 4, NULL)");
    MergedList rows;
    EXPECT_EQ(rows.X(), 7);
    EXPECT_EQ(rows.Y(), 2.5);
    EXPECT_EQ(rows.orden(), 3);
    EXPECT_EQ(number_of([&] { (void)rows.belongs_to("A"); }), error::invalid_null);
}

} // namespace
} // namespace velmora
