#include "services/settings.h"

#include "document/feedback.h"
#include "document/session.h"
#include "fakes/recording_platform.h"
#include "support/error_number.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::number_of;
using test::RecordingPlatform;

struct SettingsTest : testing::Test {
    RecordingPlatform machine;

    void store(const std::string& key, const std::string& value) {
        machine.settings.save(key.starts_with("cl_") ? "Colors" : "Values", key, value);
    }
    std::string stored(const std::string& section, const std::string& key) {
        return machine.settings.get(section, key).value_or("absent");
    }
    RuntimeError failure_of_reading() {
        try {
            LeeSettings();
        } catch (const RuntimeError& failure) {
            return failure;
        }
        return RuntimeError(0);
    }
};

TEST_F(SettingsTest, without_stored_values_the_defaults_hold) {
    Session& s = session;
    s.cl_fondo = s.cl_ejes = s.cl_lineas = s.cl_linea1 = s.cl_linea2 = s.cl_punto = 12345;
    s.cl_puntosinc = s.cl_puntosel = s.cl_coords = 12345;
    s.Def_Dec = s.Def_Arc = s.Def_ACircle = 12345;
    s.Def_Zoom = 1;
    s.Sound = 0;
    s.Idioma = "X";
    LeeSettings();
    EXPECT_EQ(s.cl_fondo, 0x80000000U);
    EXPECT_EQ(s.cl_ejes, 0xFFFFFFU);
    EXPECT_EQ(s.cl_lineas, 0U);
    EXPECT_EQ(s.cl_linea1, 255U);
    EXPECT_EQ(s.cl_linea2, 0xFF0000U);
    EXPECT_EQ(s.cl_punto, 0U);
    EXPECT_EQ(s.cl_puntosinc, 0U);
    EXPECT_EQ(s.cl_puntosel, 0U);
    EXPECT_EQ(s.cl_coords, 0U);
    EXPECT_EQ(s.Def_Dec, 6);
    EXPECT_EQ(s.Def_Arc, 25);
    EXPECT_EQ(s.Def_ACircle, 50);
    EXPECT_EQ(s.Def_Zoom, 30000);
    EXPECT_EQ(s.Sound, 1);
    EXPECT_EQ(s.Idioma, "E");
    EXPECT_TRUE(machine.settings.values.empty());
}

TEST_F(SettingsTest, stores_text_with_a_point_and_signed_colours) {
    session.SepDecimal = ',';
    session.Def_Zoom = 1234.5;
    session.cl_coords = 0xFFFFFFFF;
    session.Sound = 0;
    session.Idioma = "T";
    GuardaSettings();
    EXPECT_EQ(stored("Colors", "cl_fondo"), "-2147483648");
    EXPECT_EQ(stored("Colors", "cl_ejes"), "16777215");
    EXPECT_EQ(stored("Colors", "cl_coords"), "-1");
    EXPECT_EQ(stored("Values", "Def_Zoom"), "1234.5");
    EXPECT_EQ(stored("Values", "Def_Dec"), "6");
    EXPECT_EQ(stored("Values", "Idioma"), "T");
    EXPECT_EQ(stored("Values", "sound"), "0");
    EXPECT_EQ(machine.settings.values.size(), 15U);
}

TEST_F(SettingsTest, what_was_stored_is_read_back) {
    const auto colours = {&Session::cl_fondo,  &Session::cl_ejes,      &Session::cl_lineas,
                          &Session::cl_linea1, &Session::cl_linea2,    &Session::cl_punto,
                          &Session::cl_coords, &Session::cl_puntosinc, &Session::cl_puntosel};
    std::uint32_t value = 0x80000010;
    for (const auto colour : colours)
        session.*colour = value++;
    session.Def_Dec = 1;
    session.Def_Arc = 2;
    session.Def_ACircle = 3;
    session.Def_Zoom = 0.1;
    session.Sound = -5;
    session.Idioma = "F";
    GuardaSettings();
    reset_session();
    LeeSettings();
    value = 0x80000010;
    for (const auto colour : colours)
        EXPECT_EQ(session.*colour, value++);
    EXPECT_EQ(session.Def_Dec, 1);
    EXPECT_EQ(session.Def_Arc, 2);
    EXPECT_EQ(session.Def_ACircle, 3);
    EXPECT_EQ(session.Def_Zoom, 0.1);
    EXPECT_EQ(session.Sound, -5);
    EXPECT_EQ(session.Idioma, "F");
}

TEST_F(SettingsTest, numbers_are_read_with_either_separator_whatever_the_machine_has) {
    for (const char separator : {'.', ','}) {
        session.SepDecimal = separator;
        for (const char* text : {"1500,25", "1500.25"}) {
            store("Def_Zoom", text);
            session.Def_Zoom = 0;
            LeeSettings();
            EXPECT_EQ(session.Def_Zoom, 1500.25) << text << separator;
        }
    }
    store("Def_Dec", "2,5");
    LeeSettings();
    EXPECT_EQ(session.Def_Dec, 2);
}

TEST_F(SettingsTest, nothing_is_validated) {
    store("Def_Arc", "-3");
    store("Idioma", "Klingon");
    LeeSettings();
    EXPECT_EQ(session.Def_Arc, -3);
    EXPECT_EQ(session.Idioma, "Klingon");
}

TEST_F(SettingsTest, a_value_that_is_no_number_raises_13_with_the_numbers_own_text) {
    for (const char* key : {"cl_puntosel", "Def_ACircle", "Def_Zoom", "sound"}) {
        machine.settings.values.clear();
        store(key, "doce");
        const RuntimeError failure = failure_of_reading();
        EXPECT_EQ(failure.number, 13) << key;
        EXPECT_EQ(description_of(failure), error_description(13, 'E')) << key;
    }
    machine.settings.values.clear();
    store("cl_ejes", "azul");
    EXPECT_EQ(failure_of_reading().place, "Colors/cl_ejes=azul");
    machine.settings.values.clear();
    store("Def_Dec", "");
    EXPECT_EQ(failure_of_reading().place, "Values/Def_Dec=");
    EXPECT_EQ(failure_of_reading().number, 13);
}

TEST_F(SettingsTest, a_number_that_does_not_fit_raises_6_with_the_numbers_own_text) {
    store("cl_ejes", "2147483648");
    const RuntimeError failure = failure_of_reading();
    EXPECT_EQ(failure.number, 6);
    EXPECT_EQ(description_of(failure), error_description(6, 'E'));
    machine.settings.values.clear();
    store("sound", "40000");
    EXPECT_EQ(failure_of_reading().number, 6);
}

TEST_F(SettingsTest, the_sound_and_the_version_have_ways_of_their_own) {
    EXPECT_EQ(read_sound(), 1);
    store("sound", "0");
    EXPECT_EQ(read_sound(), 0);
    save_version();
    EXPECT_EQ(stored("Values", "Ver"), "1.0");
    EXPECT_EQ(stored("Values", "SubVer"), "1011");
}

TEST(GuardaSettings, tells_where_they_can_not_be_kept) {
    RecordingPlatform machine{test::with_database};
    struct FullDisk : test::MemorySettings {
        bool keep() override { return false; }
        std::string place() const override { return "/casa/Velmora.conf"; }
    } store;
    const Platform& now = platform();
    set_platform({now.dialogs, now.windows, now.shell, store, now.database, now.clock, now.machine,
                  now.pic, now.cad});
    GuardaSettings();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_EQ(machine.dialogs.boxes[0].text,
              "Los parámetros no se han podido guardar: la próxima vez valdrán los de antes. "
              "Fichero:\n\n/casa/Velmora.conf");
    EXPECT_EQ(machine.dialogs.boxes[0].buttons, 48);
}

TEST_F(SettingsTest, what_another_window_stored_meanwhile_stands_unless_it_was_changed_here_too) {
    LeeSettings();
    store("cl_ejes", "7");
    store("Def_Zoom", "400");
    session.Def_Zoom = 500;
    session.Def_Arc = 33;
    GuardaSettings();
    EXPECT_EQ(stored("Colors", "cl_ejes"), "7");
    EXPECT_EQ(stored("Values", "Def_Zoom"), "500");
    EXPECT_EQ(stored("Values", "Def_Arc"), "33");
    EXPECT_EQ(stored("Values", "Def_Dec"), "6") << "all are stored";
}

TEST_F(SettingsTest, a_setting_at_fault_is_known_with_its_default) {
    struct Case {
        const char *key, *section, *preset;
    };
    for (const Case& c :
         {Case{"Def_Zoom", "Values", "30000"}, Case{"Def_Dec", "Values", "6"},
          Case{"cl_fondo", "Colors", "-2147483648"}, Case{"sound", "Values", "1"}}) {
        machine.settings.values.clear();
        store(c.key, "mucho");
        const auto setting = setting_at_fault(failure_of_reading());
        ASSERT_TRUE(setting.has_value()) << c.key;
        EXPECT_EQ(setting->section, c.section);
        EXPECT_EQ(setting->key, c.key);
        EXPECT_EQ(setting->value, c.preset);
        store(c.key, setting->value);
        LeeSettings();
    }
    EXPECT_FALSE(setting_at_fault(RuntimeError(13)).has_value());
}

} // namespace
} // namespace velmora
