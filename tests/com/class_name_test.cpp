// The class name of the CAD where it is another program's, nobody's, or a running object's that is
// no CAD.
#include "adapters/running_cad.h"

#include "adapters/com/variant.h"
#include "cad/connection.h"
#include "com/cad_server.h"
#include "document/session.h"
#include "fakes/put_in_place.h"
#include "fakes/recording_platform.h"
#include "server/registration.h"
#include "support/error_number.h"

#include <array>
#include <gmock/gmock.h>
#include <tuple>

namespace velmora {
namespace {

using test::number_of;

/// The class that the name stands for, put back at the end.
class NameInRegistry {
  public:
    NameInRegistry() : former_(class_id()) {}
    ~NameInRegistry() { stand_for(former_); }
    NameInRegistry(const NameInRegistry&) = delete;
    NameInRegistry& operator=(const NameInRegistry&) = delete;

    void stand_for(const std::wstring& class_id) {
        const auto bytes = static_cast<DWORD>((class_id.size() + 1) * sizeof(wchar_t));
        RegSetKeyValueW(HKEY_LOCAL_MACHINE, kKey, nullptr, REG_SZ, class_id.c_str(), bytes);
    }
    [[nodiscard]] static std::wstring class_id() {
        std::array<wchar_t, 64> text{};
        DWORD bytes = sizeof(text);
        RegGetValueW(HKEY_LOCAL_MACHINE, kKey, nullptr, RRF_RT_REG_SZ, nullptr, text.data(),
                     &bytes);
        return text.data();
    }

  private:
    static constexpr auto kKey = L"Software\\Classes\\AutoCAD.Application\\CLSID";
    std::wstring former_;
};

constexpr auto kAnotherClass = L"{0B1D5A3E-7C52-4F0B-9C0E-61D6F3A2B984}";

int attaching(Autocad& cad) {
    return number_of([&] { std::ignore = cad.GetObject(); });
}

TEST(ClassName, of_another_program_is_no_cad_and_stays_that_programs) {
    const test::CadServer server;
    const auto cad = make_running_cad();
    NameInRegistry name;
    EXPECT_EQ(attaching(*cad), 0);
    name.stand_for(kAnotherClass);
    EXPECT_EQ(attaching(*cad), 429);
    EXPECT_EQ(test::run_cad_server(L"/register"), 1U);
    EXPECT_EQ(test::run_cad_server(L"/unregister"), 1U);
    EXPECT_EQ(name.class_id(), kAnotherClass);
}

TEST(ClassName, that_stands_for_no_class_is_no_cad) {
    const test::CadServer server;
    const auto cad = make_running_cad();
    NameInRegistry name;
    name.stand_for(L"ninguna");
    EXPECT_EQ(attaching(*cad), 429);
}

/// Something of this process among the active objects, under the class of the CAD.
class ActiveStream {
  public:
    ActiveStream() {
        IStream* made = nullptr;
        CreateStreamOnHGlobal(nullptr, TRUE, &made);
        stream_.reset(made);
        RegisterActiveObject(made, test::kStandInClass, ACTIVEOBJECT_STRONG, &entry_);
    }
    ~ActiveStream() { RevokeActiveObject(entry_, nullptr); }
    ActiveStream(const ActiveStream&) = delete;
    ActiveStream& operator=(const ActiveStream&) = delete;

    [[nodiscard]] bool stands() const { return entry_ != 0; }

  private:
    com::ComPtr<IStream> stream_;
    DWORD entry_ = 0;
};

TEST(ClassName, of_an_object_without_automation_is_no_cad) {
    const auto cad = make_running_cad();
    const ActiveStream stream;
    ASSERT_TRUE(stream.stands());
    EXPECT_EQ(attaching(*cad), 429);
}

TEST(ClassName, of_an_object_with_other_members_is_message_31) {
    test::CadServer server;
    server.say({"running Hoja 1.0", "document Ala.dwg", "hide Documents"});
    test::RecordingPlatform machine{test::with_database};
    const auto cad = make_running_cad();
    test::put_in_place(*cad);
    ReconectaAcad();
    ASSERT_EQ(machine.dialogs.boxes.size(), 1U);
    EXPECT_THAT(machine.dialogs.boxes[0].text, testing::StartsWith("Autocad no está abierto"));
    EXPECT_EQ(session.AcadOpen, False);
}

} // namespace
} // namespace velmora
