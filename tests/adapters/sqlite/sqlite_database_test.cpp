#include "adapters/sqlite/sqlite_database.h"

#include "fakes/recording_platform.h"
#include "platform/platform.h"
#include "runtime/paths.h"
#include "support/error_number.h"
#include "support/places.h"

#include <fstream>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;

struct SqliteDatabaseTest : testing::Test {
    RecordingPlatform machine;
    std::unique_ptr<Database> database = make_sqlite_database();
    std::string file = machine.path("own.mdb");

    SqliteDatabaseTest() {
        std::filesystem::copy_file(test::built_database(), machine.folder / "own.mdb");
        database->open(file);
    }
    std::unique_ptr<Recordset> table(std::string_view name, Access access = Access::read_write) {
        return database->open_recordset(name, access);
    }
    int rows_of(const std::string& name) {
        const auto rows = table("SELECT count(*) AS n FROM " + name, Access::read_only);
        return static_cast<int>(std::get<std::int64_t>(rows->field("n")));
    }
    void add_row(std::int64_t order, double position, const std::string& side) {
        const auto rows = table("TEMP_AJUSTE");
        rows->add_new();
        rows->set_field("ORDEN", order);
        rows->set_field("POS_PERCENT", position);
        rows->set_field("LADO", side);
        rows->update();
    }
};

TEST_F(SqliteDatabaseTest, a_missing_file_or_a_folder_raises_3044) {
    EXPECT_EQ(number_of([&] { database->open(machine.path("none.mdb")); }), 3044);
    EXPECT_EQ(number_of([&] { database->open(machine.path("")); }), 3044);
    EXPECT_FALSE(database->is_open());
    EXPECT_FALSE(std::filesystem::exists(machine.folder / "none.mdb"));
}

TEST_F(SqliteDatabaseTest, a_file_that_is_empty_or_no_database_raises_3343) {
    EXPECT_EQ(number_of([&] { database->open(machine.write("empty.mdb", "")); }), 3343);
    const std::string text(4096, 'x');
    EXPECT_EQ(number_of([&] { database->open(machine.write("text.mdb", text)); }), 3343);
    EXPECT_FALSE(database->is_open());
}

TEST_F(SqliteDatabaseTest, a_file_locked_by_another_program_raises_3008) {
    database->execute("BEGIN EXCLUSIVE");
    const auto other = make_sqlite_database();
    EXPECT_EQ(number_of([&] { other->open(file); }), 3008);
    database->commit();
    EXPECT_EQ(number_of([&] { other->open(file); }), 0);
}

TEST_F(SqliteDatabaseTest, either_separator_leads_to_the_file) {
    const auto folder = runtime::native_path(machine.path("ñandú"));
    std::filesystem::create_directory(folder);
    std::filesystem::copy_file(test::built_database(), folder / "V.MDB");
    database->open(machine.path("") + "ñandú\\V.MDB");
    EXPECT_TRUE(database->is_open());
}

TEST_F(SqliteDatabaseTest, a_write_protected_file_is_read_and_refuses_writing) {
    database->close();
    const auto path = machine.folder / "own.mdb";
    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    // The permission means nothing to root.
    const bool writable = std::ofstream(path, std::ios::app).is_open();
    database->open(file);
    EXPECT_GT(rows_of("Mensajes"), 80);
    EXPECT_EQ(number_of([&] { database->execute("DELETE FROM TEMP_AJUSTE"); }),
              writable ? 0 : 3027);
}

TEST_F(SqliteDatabaseTest, without_an_open_database_everything_raises_91) {
    database->close();
    EXPECT_FALSE(database->is_open());
    EXPECT_EQ(number_of([&] { (void)table("Mensajes"); }), 91);
    EXPECT_EQ(number_of([&] { (void)table("SELECT * FROM Mensajes"); }), 91);
    EXPECT_EQ(number_of([&] { database->execute("DELETE FROM TEMP_AJUSTE"); }), 91);
    EXPECT_EQ(number_of([&] { database->begin(); }), 91);
    EXPECT_EQ(number_of([&] { database->commit(); }), 91);
}

TEST_F(SqliteDatabaseTest, a_table_that_is_not_there_raises_3078) {
    EXPECT_EQ(number_of([&] { (void)table("Ninguna"); }), 3078);
    EXPECT_EQ(number_of([&] { (void)table("SELECT * FROM Ninguna ORDER BY X ASC"); }), 3078);
    EXPECT_EQ(number_of([&] { database->execute("DELETE FROM Ninguna"); }), 3078);
}

TEST_F(SqliteDatabaseTest, a_seek_finds_the_row_of_the_whole_key_to_the_letter) {
    const auto rows = table("mensajes", Access::read_only);
    rows->seek({"37", "E"});
    EXPECT_FALSE(rows->no_match());
    EXPECT_EQ(text_of(rows->field("Descripcion")), "No hay ninguna forma cargada!");
    EXPECT_EQ(text_of(rows->field("BOTONES")), "0");
    for (const auto& key : {std::pair{"37", "e"}, {"037", "E"}, {"37 ", "E"}, {"37", ""}}) {
        rows->seek({key.first, key.second});
        EXPECT_TRUE(rows->no_match()) << key.first << key.second;
        EXPECT_EQ(number_of([&] { (void)rows->field("Descripcion"); }), 3021);
    }
}

TEST_F(SqliteDatabaseTest, a_seek_with_another_key_than_the_tables_raises_3251) {
    EXPECT_EQ(number_of([&] { table("Mensajes")->seek({"37"}); }), 3251);
    EXPECT_EQ(number_of([&] { table("TEMP_AJUSTE")->seek({"37"}); }), 3251);
    EXPECT_EQ(number_of([&] { table("TEMP_AJUSTE")->seek({}); }), 3251);
}

TEST_F(SqliteDatabaseTest, a_name_that_is_no_field_raises_3265) {
    const auto rows = table("Mensajes", Access::read_write);
    rows->seek({"37", "E"});
    EXPECT_EQ(number_of([&] { (void)rows->field("Texto"); }), 3265);
    rows->add_new();
    EXPECT_EQ(number_of([&] { rows->set_field("Texto", Value{}); }), 3265);
    EXPECT_EQ(number_of([&] { (void)table("SELECT * FROM Mensajes")->field("Texto"); }), 3265);
}

TEST_F(SqliteDatabaseTest, a_new_row_keeps_its_values_and_their_kinds) {
    add_row(7, 0.1, "A");
    const auto rows = table("SELECT * FROM TEMP_AJUSTE", Access::read_only);
    EXPECT_EQ(rows->field("ORDEN"), Value{std::int64_t{7}});
    EXPECT_EQ(rows->field("POS_PERCENT"), Value{0.1});
    EXPECT_EQ(rows->field("LADO"), Value{std::string{"A"}});
    EXPECT_TRUE(is_null(rows->field("COORD_X")));
}

TEST_F(SqliteDatabaseTest, a_new_row_needs_a_beginning_and_a_table_open_for_writing) {
    const auto rows = table("TEMP_AJUSTE");
    EXPECT_EQ(number_of([&] { rows->set_field("ORDEN", std::int64_t{1}); }), 3020);
    EXPECT_EQ(number_of([&] { rows->update(); }), 3020);
    rows->add_new();
    rows->update();
    EXPECT_EQ(number_of([&] { rows->update(); }), 3020);
    EXPECT_EQ(number_of([&] { table("TEMP_AJUSTE", Access::read_only)->add_new(); }), 3027);
    EXPECT_EQ(rows_of("TEMP_AJUSTE"), 1);
}

TEST_F(SqliteDatabaseTest, the_tables_rules_for_a_new_row_have_numbers) {
    const auto rows = table("Mensajes");
    const auto add = [&](const Value& code, const std::string& text) {
        rows->add_new();
        rows->set_field("Codigo", code);
        rows->set_field("Idioma", std::string{"E"});
        rows->set_field("Descripcion", text);
        rows->update();
    };
    EXPECT_EQ(number_of([&] { add(std::string{"4"}, "x"); }), 3022);
    EXPECT_EQ(number_of([&] { add(Value{}, "x"); }), 3058);
    EXPECT_EQ(number_of([&] { add(std::string{"123456"}, "x"); }), 3163);
    EXPECT_EQ(number_of([&] { add(std::string{"900"}, std::string(201, 'x')); }), 3163);
    EXPECT_EQ(number_of([&] { add(std::string{"900"}, std::string(200, 'x')); }), 0);
}

TEST_F(SqliteDatabaseTest, a_select_is_read_forward_and_again_from_its_first_row) {
    add_row(0, 2, "A");
    add_row(1, 1, "A");
    const auto rows = table("SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC");
    for (int pass = 0; pass < 2; ++pass) {
        rows->move_first();
        EXPECT_EQ(rows->field("ORDEN"), Value{std::int64_t{1}});
        rows->move_next();
        EXPECT_EQ(rows->field("ORDEN"), Value{std::int64_t{0}});
        EXPECT_FALSE(rows->eof());
        rows->move_next();
        EXPECT_TRUE(rows->eof());
        EXPECT_EQ(number_of([&] { (void)rows->field("ORDEN"); }), 3021);
        EXPECT_EQ(number_of([&] { rows->move_next(); }), 3021);
    }
}

TEST_F(SqliteDatabaseTest, a_select_without_rows_is_at_its_end) {
    const auto rows = table("SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC");
    EXPECT_TRUE(rows->eof());
    EXPECT_EQ(number_of([&] { rows->move_first(); }), 3021);
}

TEST_F(SqliteDatabaseTest, what_only_the_other_kind_of_recordset_does_raises_3251) {
    const auto rows = table("SELECT * FROM Mensajes");
    EXPECT_EQ(number_of([&] { rows->seek({"4", "E"}); }), 3251);
    EXPECT_EQ(number_of([&] { rows->add_new(); }), 3251);
    EXPECT_EQ(number_of([&] { table("Mensajes")->move_first(); }), 3251);
    EXPECT_EQ(number_of([&] { table("Mensajes")->move_next(); }), 3251);
}

TEST_F(SqliteDatabaseTest, rows_of_equal_order_come_as_they_were_added) {
    // Enough rows for the sorter to work in pieces, and gaps that a delete leaves.
    database->begin();
    const auto rows = table("TEMP_AJUSTE");
    constexpr std::int64_t count = 20000;
    for (int round = 0; round < 2; ++round) {
        database->execute("DELETE FROM TEMP_AJUSTE");
        for (std::int64_t i = 0; i < count; ++i) {
            rows->add_new();
            rows->set_field("ORDEN", i);
            rows->set_field("POS_PERCENT", static_cast<double>(i % 3));
            rows->set_field("LADO", std::string(i % 2 == 0 ? "A" : "B"));
            rows->update();
        }
    }
    database->commit();
    const auto sorted = table("SELECT * FROM TEMP_AJUSTE ORDER BY POS_PERCENT ASC;");
    double position = 0;
    std::int64_t order = -1;
    std::int64_t seen = 0;
    for (; !sorted->eof(); sorted->move_next(), ++seen) {
        const double next = std::get<double>(sorted->field("POS_PERCENT"));
        const std::int64_t next_order = std::get<std::int64_t>(sorted->field("ORDEN"));
        ASSERT_TRUE(next > position || (next == position && next_order > order)) << next_order;
        position = next;
        order = next_order;
    }
    EXPECT_EQ(seen, count);
}

TEST_F(SqliteDatabaseTest, a_statement_at_fault_raises_3075_and_does_nothing) {
    const std::string before = "INSERT INTO Velmora VALUES ('k','E','";
    for (const std::string& statement : {
             before + "it's','')",
             before + "it','''); DELETE FROM Velmora; --','')",
             before + "it',''); DELETE FROM Velmora",
             before + "it','') --','')",
             before + "it','') /*','')",
             before + "a',nada,'c')",
             before + "open",
             std::string("DELETE FROM Velmora WHERE Nada = 1"),
             std::string(""),
             std::string(" ; "),
         })
        EXPECT_EQ(number_of([&] { database->execute(statement); }), 3075) << statement;
    EXPECT_GT(rows_of("Velmora"), 70);
    EXPECT_EQ(rows_of("Velmora WHERE Control = 'k'"), 0);
}

TEST_F(SqliteDatabaseTest, marks_of_a_comment_inside_a_text_are_text) {
    database->execute("INSERT INTO Velmora VALUES ('k','E','a -- b /* c; ''d''','')");
    EXPECT_EQ(rows_of("Velmora WHERE Descripcion = 'a -- b /* c; ''d'''"), 1);
}

TEST_F(SqliteDatabaseTest, a_table_made_twice_raises_3010_and_a_repeated_key_3022) {
    const std::string make = "CREATE TABLE propia ( Control TEXT(50), PRIMARY KEY (Control))";
    database->execute(make);
    EXPECT_EQ(number_of([&] { database->execute(make); }), 3010);
    database->execute("INSERT INTO propia VALUES ('a')");
    EXPECT_EQ(number_of([&] { database->execute("INSERT INTO propia VALUES ('a')"); }), 3022);
}

TEST_F(SqliteDatabaseTest, a_rollback_drops_what_was_not_committed_and_ends_the_transaction) {
    database->rollback();
    add_row(1, 10, "A");
    database->begin();
    add_row(2, 20, "A");
    database->rollback();
    EXPECT_EQ(rows_of("TEMP_AJUSTE"), 1);
    add_row(3, 30, "A");
    database->rollback();
    EXPECT_EQ(rows_of("TEMP_AJUSTE"), 2);
    database->close();
    database->rollback();
}

TEST_F(SqliteDatabaseTest, closing_drops_a_transaction_that_was_not_committed) {
    database->begin();
    database->begin();
    add_row(1, 1, "A");
    database->close();
    database->open(file);
    EXPECT_EQ(rows_of("TEMP_AJUSTE"), 0);
    database->begin();
    add_row(1, 1, "A");
    database->commit();
    EXPECT_EQ(number_of([&] { database->commit(); }), 0);
    database->open(file);
    EXPECT_EQ(rows_of("TEMP_AJUSTE"), 1);
}

TEST_F(SqliteDatabaseTest, an_open_table_keeps_nobody_from_writing) {
    const auto rows = table("Mensajes", Access::read_only);
    rows->seek({"4", "E"});
    const auto other = make_sqlite_database();
    other->open(file);
    other->execute("DELETE FROM Mensajes WHERE Codigo = '4'");
    EXPECT_EQ(text_of(rows->field("Botones")), "4");
    rows->seek({"4", "E"});
    EXPECT_TRUE(rows->no_match());
}

TEST_F(SqliteDatabaseTest, faults_without_a_text_of_the_program_say_what_the_database_says) {
    const auto description = [&](const std::string& statement) {
        try {
            database->execute(statement);
        } catch (const RuntimeError& failure) {
            return failure.description;
        }
        return std::string("nothing raised");
    };
    EXPECT_THAT(description("DELETE FORM Velmora"), testing::HasSubstr("FORM"));
    EXPECT_EQ(description("DELETE FROM Ninguna"), "");
}

} // namespace
} // namespace velmora
