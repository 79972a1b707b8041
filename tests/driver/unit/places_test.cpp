#include "script/places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora::driver {
namespace {

TEST(Places, names_both_folders) {
    const Places places("/tmp/x/work", "/tmp/x/program");
    EXPECT_EQ(places.named("/tmp/x/work/ala.dat"), "$WORK/ala.dat");
    EXPECT_EQ(places.named("/tmp/x/program"), "$PROGRAM");
    EXPECT_EQ(places.named("El fichero : /tmp/x/work/a.dat ya existe, /tmp/x/work/b"),
              "El fichero : $WORK/a.dat ya existe, $WORK/b");
    EXPECT_EQ(places.named("nothing"), "nothing");
}

TEST(Places, names_folders_shown_in_capitals) {
    const Places places("/tmp/x/año", "/tmp/x/program");
    EXPECT_EQ(places.named("Cargado: /TMP/X/AÑO/ALA.DAT"), "Cargado: $WORK/ALA.DAT");
    EXPECT_EQ(places.named("/TMP/X/PROGRAM/A"), "$PROGRAM/A");
}

TEST(Places, leaves_a_longer_name_alone) {
    const Places places("/tmp/x/work", "/tmp/x/program");
    EXPECT_EQ(places.named("/tmp/x/work2/a.dat"), "/tmp/x/work2/a.dat");
    EXPECT_EQ(places.named("/tmp/x/work-2 /tmp/x/work"), "/tmp/x/work-2 $WORK");
}

TEST(Places, takes_the_longer_path_where_one_lies_in_the_other) {
    EXPECT_EQ(Places("/tmp", "/tmp/program").named("/tmp/program/a /tmp/b"), "$PROGRAM/a $WORK/b");
    EXPECT_EQ(Places("/tmp/program/w", "/tmp/program").named("/tmp/program/w/a"), "$WORK/a");
}

TEST(Places, resolves_against_the_work_folder) {
    const Places places("/tmp/x/work", "/tmp/x/program");
    EXPECT_EQ(places.resolve("a.dat"), "/tmp/x/work/a.dat");
    EXPECT_EQ(places.resolve("/etc/hosts"), "/etc/hosts");
    EXPECT_EQ(places.resolve("$WORK/a.dat"), "/tmp/x/work/a.dat");
    EXPECT_EQ(places.resolve("$PROGRAM"), "/tmp/x/program");
    EXPECT_EQ(places.resolve("$PROGRAMS"), "/tmp/x/work/$PROGRAMS");
}

TEST(Places, expands_a_text_that_begins_with_a_folder) {
    const Places places("/tmp/x/work", "/tmp/x/program");
    EXPECT_EQ(places.expanded("$WORK/a.dat"), "/tmp/x/work/a.dat");
    EXPECT_EQ(places.expanded("$PROGRAM/a.dat"), "/tmp/x/program/a.dat");
    EXPECT_EQ(places.expanded("a.dat"), "a.dat");
    EXPECT_EQ(places.expanded("de $WORK/a.dat"), "de $WORK/a.dat");
    EXPECT_EQ(places.expanded(""), "");
}

TEST(Places, quotes_a_word_behind_the_naming) {
    const Places places("/tmp/a b", "/tmp/x/program");
    EXPECT_EQ(places.word("/tmp/a b/ala.dat"), "$WORK/ala.dat");
    EXPECT_EQ(places.word("/tmp/a b/mi ala.dat"), "\"$WORK/mi ala.dat\"");
}

} // namespace
} // namespace velmora::driver
