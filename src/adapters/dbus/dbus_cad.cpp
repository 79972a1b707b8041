#include "adapters/dbus/dbus_cad.h"

#include "adapters/dbus/cad_link.h"
#include "adapters/dbus/dbus_objects.h"
#include "adapters/running_cad.h"
#include "runtime/error.h"

#include <optional>
#include <utility>

namespace velmora {

namespace {

class DbusCad : public Autocad {
  public:
    explicit DbusCad(CadPatience patience) : patience_(patience) {}

    std::shared_ptr<AcadApplication> GetObject() override {
        auto link = CadLink::attach(patience_);
        if (!link || !offers_interface(*link))
            raise(error::cannot_create_object);
        return std::make_shared<DbusApplication>(std::make_shared<CadLink>(*std::move(link)));
    }

    void AppActivate() override {
        const auto link = CadLink::attach(patience_);
        if (!link)
            raise(error::invalid_call);
        link->tell("Activate");
    }

  private:
    /// Anybody can own a name. One that says nothing is at work.
    [[nodiscard]] static bool offers_interface(const CadLink& link) {
        bool offers = true;
        trap([&] { std::ignore = link.property("Name"); },
             [&](const RuntimeError& failure) { offers = failure.number == error::cad_busy; });
        return offers;
    }

    CadPatience patience_;
};

} // namespace

std::unique_ptr<Autocad> make_dbus_cad(CadPatience patience) {
    return std::make_unique<DbusCad>(patience);
}

std::unique_ptr<Autocad> make_running_cad() {
    return make_dbus_cad();
}

} // namespace velmora
