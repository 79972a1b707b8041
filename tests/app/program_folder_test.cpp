#include "app/program_folder.h"

#include "adapters/sqlite/sqlite_database.h"
#include "runtime/paths.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "support/unprivileged.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#ifdef __linux__
#include <csignal>
#include <sys/resource.h>
#endif

namespace velmora {

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

class ProgramFolderTest : public testing::Test {
  protected:
    ProgramFolderTest() {
        for (const fs::path& folder : {places.executable, places.installed})
            fs::create_directories(folder);
    }

    static void write(const fs::path& path, std::string_view text) {
        fs::create_directories(path.parent_path());
        fs::remove(path);
        std::ofstream(path, std::ios::binary) << text;
    }
    static std::string read(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static bool writable(const fs::path& path) {
        return (fs::status(path).permissions() & fs::perms::owner_write) != fs::perms::none;
    }
    static void put_database(const fs::path& folder) {
        fs::copy_file(test::built_database(), folder / "VELMORA.MDB",
                      fs::copy_options::overwrite_existing);
    }
    static void change(const fs::path& folder, std::string_view statement) {
        const auto database = make_sqlite_database();
        database->open(runtime::path_text(folder / "VELMORA.MDB"));
        database->execute(statement);
    }
    static void set_message(const fs::path& folder, const std::string& text) {
        change(folder, "UPDATE Mensajes SET Descripcion = '" + text +
                           "' WHERE Codigo = '37' AND Idioma = 'E'");
    }
    static std::string message_in(const fs::path& file) {
        const auto database = make_sqlite_database();
        database->open(runtime::path_text(file));
        const auto row = database->open_recordset(
            "SELECT Descripcion FROM Mensajes WHERE Codigo = '37' AND Idioma = 'E'",
            Access::read_only);
        return text_of(row->field("Descripcion"));
    }

    std::string users_message() const { return message_in(places.user_data / "VELMORA.MDB"); }
    /// The program starts: fills the user's folder from the installed files.
    ProgramFolder start() const { return choose_program_folder(places); }
    void start_in_users_folder() const {
        const ProgramFolder folder = start();
        ASSERT_EQ(folder.path, places.user_data);
        EXPECT_FALSE(folder.stands_in);
    }

    test::TemporaryFolder folder_;
    fs::path root = folder_.path();
    ProgramPlaces places{root / "bin",
                         root / "data" / "Velmora",
                         root / "share" / "velmora",
                         {root / "run" / "Velmora", root / "tmp" / "Velmora"}};
    fs::path kept = places.user_data / "VELMORA-1.MDB";
};

TEST_F(ProgramFolderTest, is_the_executables_where_the_database_lies_beside_it) {
    write(places.executable / "VELMORA.MDB", "portable");
    EXPECT_EQ(start().path, places.executable);
    EXPECT_FALSE(fs::exists(places.user_data));
}

TEST_F(ProgramFolderTest, is_the_users_filled_from_the_installed_files) {
    for (const char* name : {"mdbwav0.wav", "velmora.chm", "velmora_fr.chm", "deployment.txt"})
        write(places.installed / name, name);
    put_database(places.installed);
    write(places.installed / "help" / "index.html", "pages");
    fs::permissions(places.installed / "VELMORA.MDB", fs::perms::owner_read);
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "mdbwav0.wav");
    EXPECT_EQ(read(places.user_data / "velmora.chm"), "velmora.chm");
    EXPECT_EQ(read(places.user_data / "velmora_fr.chm"), "velmora_fr.chm");
    EXPECT_EQ(read(places.user_data / "deployment.txt"), "deployment.txt");
    EXPECT_EQ(read(places.user_data / "help" / "index.html"), "pages");
    EXPECT_EQ(users_message(), message_in(test::built_database()));
    EXPECT_TRUE(writable(places.user_data / "VELMORA.MDB"));
}

TEST_F(ProgramFolderTest, is_the_users_with_nothing_installed_too) {
    EXPECT_EQ(start().path, places.user_data);
    EXPECT_TRUE(fs::is_directory(places.user_data));
}

TEST_F(ProgramFolderTest, a_copy_nobody_touched_is_renewed_with_the_program) {
    put_database(places.installed);
    write(places.installed / "mdbwav0.wav", "old sound");
    write(places.installed / "help" / "index.html", "old page");
    start_in_users_folder();
    set_message(places.installed, "Nuevo");
    write(places.installed / "mdbwav0.wav", "new sound");
    write(places.installed / "help" / "index.html", "new page");
    const ProgramFolder folder = start();
    EXPECT_EQ(users_message(), "Nuevo");
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "new sound");
    EXPECT_EQ(read(places.user_data / "help" / "index.html"), "new page");
    EXPECT_THAT(folder.kept_aside, IsEmpty());
    EXPECT_FALSE(fs::exists(kept));
}

TEST_F(ProgramFolderTest, what_the_program_writes_into_its_database_is_no_change_of_the_users) {
    put_database(places.installed);
    start_in_users_folder();
    change(places.user_data, "INSERT INTO TEMP_AJUSTE VALUES (1, 2, 3, 4, 'A')");
    change(places.user_data, "DELETE FROM Mult_Ptos");
    set_message(places.installed, "Nuevo");
    EXPECT_THAT(start().kept_aside, IsEmpty());
    EXPECT_EQ(users_message(), "Nuevo");
}

TEST_F(ProgramFolderTest, a_database_the_user_changed_stays_until_a_newer_one_comes) {
    put_database(places.installed);
    start_in_users_folder();
    set_message(places.user_data, "Mío");
    EXPECT_THAT(start().kept_aside, IsEmpty());
    EXPECT_EQ(users_message(), "Mío");
    set_message(places.installed, "Nuevo");
    EXPECT_THAT(start().kept_aside, ElementsAre(kept));
    EXPECT_EQ(users_message(), "Nuevo");
    EXPECT_EQ(message_in(kept), "Mío");
    EXPECT_THAT(start().kept_aside, IsEmpty());
}

TEST_F(ProgramFolderTest, a_copy_of_a_program_without_a_record_is_kept_aside_where_it_differs) {
    put_database(places.installed);
    write(places.installed / "mdbwav0.wav", "new sound");
    fs::create_directories(places.user_data);
    put_database(places.user_data);
    set_message(places.user_data, "De antes");
    write(places.user_data / "mdbwav0.wav", "old sound");
    write(kept, "taken");
    EXPECT_THAT(start().kept_aside, ElementsAre(places.user_data / "VELMORA-2.MDB"));
    EXPECT_EQ(message_in(places.user_data / "VELMORA-2.MDB"), "De antes");
    EXPECT_EQ(read(kept), "taken");
    EXPECT_EQ(users_message(), message_in(test::built_database()));
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "new sound");
}

TEST_F(ProgramFolderTest, a_damaged_database_is_kept_aside_and_renewed) {
    put_database(places.installed);
    start_in_users_folder();
    const std::string half = read(test::built_database()).substr(0, 133120);
    write(places.user_data / "VELMORA.MDB", half);
    EXPECT_THAT(start().kept_aside, ElementsAre(kept));
    EXPECT_EQ(read(kept), half);
    EXPECT_EQ(users_message(), message_in(test::built_database()));
}

TEST_F(ProgramFolderTest, a_damaged_installed_database_takes_nothings_place) {
    put_database(places.installed);
    start_in_users_folder();
    write(places.installed / "VELMORA.MDB", "rubbish");
    EXPECT_THAT(start().kept_aside, IsEmpty());
    EXPECT_EQ(users_message(), message_in(test::built_database()));
}

TEST_F(ProgramFolderTest, a_database_that_another_one_has_locked_stays) {
    put_database(places.installed);
    start_in_users_folder();
    set_message(places.installed, "Nuevo");
    const auto other = make_sqlite_database();
    other->open(runtime::path_text(places.user_data / "VELMORA.MDB"));
    other->execute("BEGIN EXCLUSIVE");
    EXPECT_THAT(start().kept_aside, IsEmpty());
    other->rollback();
    EXPECT_NE(users_message(), "Nuevo");
    start_in_users_folder();
    EXPECT_EQ(users_message(), "Nuevo");
}

TEST_F(ProgramFolderTest, a_users_own_template_and_sound_stay) {
    for (const char* name : {"acad.dwt", "mdbwav7.wav"})
        write(places.installed / name, "the program's");
    start_in_users_folder();
    for (const char* name : {"acad.dwt", "mdbwav7.wav"}) {
        write(places.user_data / name, "the user's");
        write(places.installed / name, "the newer program's");
    }
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "acad.dwt"), "the user's");
    EXPECT_EQ(read(places.user_data / "mdbwav7.wav"), "the user's");
}

TEST_F(ProgramFolderTest, machines_come_and_the_users_own_stay) {
    write(places.installed / "machines" / "xyuv.machine", "shipped");
    write(places.installed / "machines" / "xyza.machine", "shipped");
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "machines" / "xyuv.machine"), "shipped");
    write(places.user_data / "machines" / "mine.machine", "the user's");
    write(places.user_data / "machines" / "xyza.machine", "the user's");
    write(places.installed / "machines" / "xyuv.machine", "newer");
    write(places.installed / "machines" / "xyza.machine", "newer");
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "machines" / "xyuv.machine"), "newer");
    EXPECT_EQ(read(places.user_data / "machines" / "xyza.machine"), "the user's");
    EXPECT_EQ(read(places.user_data / "machines" / "mine.machine"), "the user's");
}

// A file in the way of a folder stands for every place that can't be written; permissions mean
// nothing to root.

TEST_F(ProgramFolderTest, without_a_users_folder_the_next_place_serves) {
    put_database(places.installed);
    write(root / "data", "in the way");
    EXPECT_EQ(start().path, places.stand_ins[0]);
    EXPECT_TRUE(start().stands_in);
    EXPECT_EQ(message_in(places.stand_ins[0] / "VELMORA.MDB"), message_in(test::built_database()));
}

TEST_F(ProgramFolderTest, a_temporary_folder_serves_where_nothing_else_does) {
    put_database(places.installed);
    write(root / "data", "in the way");
    write(root / "run", "in the way");
    EXPECT_EQ(start().path, places.stand_ins[1]);
}

TEST_F(ProgramFolderTest, a_stand_in_that_is_a_link_is_left_alone) {
    put_database(places.installed);
    write(root / "data", "in the way");
    fs::create_directories(root / "elsewhere");
    fs::create_directories(root / "run");
    fs::create_directory_symlink(root / "elsewhere", places.stand_ins[0]);
    EXPECT_EQ(start().path, places.stand_ins[1]);
    EXPECT_TRUE(fs::is_empty(root / "elsewhere"));
}

TEST_F(ProgramFolderTest, the_installed_database_is_read_where_nothing_can_be_written) {
    put_database(places.installed);
    for (const char* name : {"data", "run", "tmp"})
        write(root / name, "in the way");
    EXPECT_EQ(start().path, places.installed);
    EXPECT_TRUE(start().stands_in);
}

#ifdef __linux__

/// As the user whom permissions bind; root can write anywhere.
struct ReadOnlyHelpTest : test::OrdinaryUser, ProgramFolderTest {};

TEST_F(ReadOnlyHelpTest, a_help_folder_that_is_read_only_arrives_and_can_be_renewed) {
    write(places.installed / "help" / "index.html", "page");
    write(places.installed / "help" / "img" / "a.png", "picture");
    for (const char* name : {"help/index.html", "help/img/a.png"})
        fs::permissions(places.installed / name, fs::perms::owner_read);
    for (const char* name : {"help/img", "help"})
        fs::permissions(places.installed / name, fs::perms::owner_read | fs::perms::owner_exec);
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "help" / "img" / "a.png"), "picture");
    for (const char* name : {"help", "help/img", "help/index.html", "help/img/a.png"})
        EXPECT_TRUE(writable(places.user_data / name)) << name;
    for (const char* name : {"help", "help/img"})
        fs::permissions(places.installed / name, fs::perms::owner_all);
}

TEST_F(ReadOnlyHelpTest, an_empty_read_only_help_folder_of_before_is_filled) {
    write(places.installed / "help" / "index.html", "page");
    fs::create_directories(places.user_data / "help");
    fs::permissions(places.user_data / "help", fs::perms::owner_read | fs::perms::owner_exec);
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "help" / "index.html"), "page");
}

/// No file of this process grows beyond a length, as on a disk that is full.
class FileLimit {
  public:
    explicit FileLimit(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
    FileLimit(const FileLimit&) = delete;
    FileLimit& operator=(const FileLimit&) = delete;

  private:
    rlimit before_{};
};

TEST_F(ProgramFolderTest, a_file_arrives_whole_or_not_at_all_and_comes_at_the_next_start) {
    put_database(places.installed);
    write(places.installed / "mdbwav0.wav", "a short sound");
    write(places.installed / "help" / "index.html", std::string(50000, 'x'));
    {
        const FileLimit full(20000);
        EXPECT_EQ(start().path, places.installed);
    }
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "a short sound");
    EXPECT_FALSE(fs::exists(places.user_data / "VELMORA.MDB"));
    EXPECT_TRUE(fs::is_empty(places.user_data / "help"));
    start_in_users_folder();
    EXPECT_EQ(users_message(), message_in(test::built_database()));
    EXPECT_EQ(read(places.user_data / "help" / "index.html").size(), 50000U);
}

TEST_F(ProgramFolderTest, a_record_that_does_not_fit_is_not_begun) {
    write(places.installed / "mdbwav0.wav", "sound");
    const FileLimit full(40);
    start_in_users_folder();
    EXPECT_EQ(read(places.user_data / "mdbwav0.wav"), "sound");
    EXPECT_FALSE(fs::exists(places.user_data / "installed.txt"));
}

TEST_F(ProgramFolderTest, a_full_disk_leaves_the_users_database_where_it_is) {
    put_database(places.installed);
    start_in_users_folder();
    set_message(places.user_data, "Mío");
    set_message(places.installed, "Nuevo");
    {
        const FileLimit full(20000);
        const ProgramFolder folder = start();
        EXPECT_EQ(folder.path, places.user_data);
        EXPECT_THAT(folder.kept_aside, IsEmpty());
    }
    EXPECT_EQ(users_message(), "Mío");
    EXPECT_FALSE(fs::exists(kept));
}

#endif

} // namespace

} // namespace velmora
