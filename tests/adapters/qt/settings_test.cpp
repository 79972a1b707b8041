#include "adapters/qt/qt_settings.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace velmora {

namespace {

class SettingsTest : public testing::Test {
  protected:
    std::string file() const { return folder_.filePath("Velmora.conf").toStdString(); }
    void write(const char* text) const {
        QFile store(folder_.filePath("Velmora.conf"));
        ASSERT_TRUE(store.open(QIODevice::WriteOnly));
        store.write(text);
    }

    QTemporaryDir folder_;
};

TEST_F(SettingsTest, what_was_never_stored_is_nothing) {
    EXPECT_EQ(make_file_settings(file())->get("Values", "Def_Dec"), std::nullopt);
}

TEST_F(SettingsTest, texts_come_back_from_the_file_as_they_were) {
    const char* texts[] = {"",      " ",  "6",   "-2147483648", "1,5", "a;b", "C:\\ala ñ.dat",
                           "\"x\"", "@x", "%20", "línea"};
    for (const char* text : texts) {
        make_file_settings(file())->save("RecentFiles", "RecentFile1", text);
        EXPECT_EQ(make_file_settings(file())->get("RecentFiles", "RecentFile1"), text);
    }
}

TEST_F(SettingsTest, sections_keep_their_keys_apart) {
    auto store = make_file_settings(file());
    store->save("Colors", "a", "1");
    store->save("Values", "a", "2");
    EXPECT_EQ(store->get("Colors", "a"), "1");
    EXPECT_EQ(store->get("Values", "a"), "2");
}

TEST_F(SettingsTest, a_comma_that_someone_wrote_into_the_file_is_part_of_the_text) {
    write("[Values]\nDef_Zoom=2,5\n");
    EXPECT_EQ(make_file_settings(file())->get("Values", "Def_Zoom"), "2,5");
}

TEST_F(SettingsTest, two_stores_of_one_file_lose_nothing_of_each_other) {
    auto one = make_file_settings(file());
    auto other = make_file_settings(file());
    one->save("Values", "Def_Dec", "4");
    EXPECT_TRUE(one->keep());
    other->save("Values", "Def_Arc", "9");
    EXPECT_TRUE(other->keep());
    EXPECT_EQ(other->get("Values", "Def_Dec"), "4");
    EXPECT_TRUE(one->keep());
    EXPECT_EQ(one->get("Values", "Def_Arc"), "9");
}

TEST_F(SettingsTest, what_was_saved_can_be_got_before_it_is_kept) {
    auto store = make_file_settings(file());
    store->save("Values", "Def_Dec", "4");
    EXPECT_EQ(store->get("Values", "Def_Dec"), "4");
    EXPECT_FALSE(QFile::exists(QString::fromStdString(file())));
}

TEST_F(SettingsTest, a_link_to_the_file_stays_a_link) {
    write("[Values]\nDef_Dec=3\n");
    const QString link = folder_.filePath("link.conf");
    ASSERT_TRUE(QFile::link(folder_.filePath("Velmora.conf"), link));
    make_file_settings(link.toStdString())->save("Values", "Def_Dec", "5");
    EXPECT_FALSE(QFile::symLinkTarget(link).isEmpty());
    EXPECT_EQ(make_file_settings(file())->get("Values", "Def_Dec"), "5");
}

TEST_F(SettingsTest, a_folder_that_takes_no_file_keeps_nothing_and_says_so) {
    auto store = make_file_settings(file() + "/none/Velmora.conf");
    write("");
    store->save("Values", "Def_Dec", "4");
    EXPECT_FALSE(store->keep());
    EXPECT_EQ(store->get("Values", "Def_Dec"), "4");
}

} // namespace

} // namespace velmora
