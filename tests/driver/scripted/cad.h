// A CAD that answers as a script describes it: the program's road to AutoCAD, with a drawing that
// lives in memory, a queue of picked points, and failures to order.
#pragma once

#include "cad/autocad.h"
#include "scripted/cad_drawing.h"

#include <array>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmora::driver {

using PickedPoint = std::array<double, 2>;

/// A failure laid out for the next use of a member: "GetPoint", "Documents.Add", "Count".
struct CadFailure {
    std::string member;
    std::int32_t number = 0;
};

/// What the script and the objects handed to the program share.
struct CadState {
    bool running = false;
    /// What runs, or what the script lays out for one that will.
    std::shared_ptr<CadApplication> application = std::make_shared<CadApplication>();
    std::vector<std::string> log; ///< method calls and writes on the application, in order
    std::deque<std::variant<PickedPoint, std::int32_t>> picks; ///< points, and errors by number
    std::deque<CadFailure> failures;
    /// GetPoint came and the queue is empty. Does not return.
    std::function<void()> no_pick;

    /// Nothing runs any more; what the program holds of it is gone.
    void stop();
    /// Raises the first failure that is laid out for a member. "Documents.Add" answers to itself,
    /// to "Add", "Documents", "AcadDocuments.Add" and "AcadApplication.Documents".
    void use(std::string_view member);
};

/// Whether a member's name as a script writes it stands for this member.
[[nodiscard]] bool names_member(std::string_view word, std::string_view member);
/// Whether any member answers to the name.
[[nodiscard]] bool is_cad_member(std::string_view word);

class ScriptedCad : public Autocad {
  public:
    explicit ScriptedCad(CadState& state) : state_(state) {}

    std::shared_ptr<AcadApplication> GetObject() override;
    void AppActivate() override;

  private:
    CadState& state_;
};

} // namespace velmora::driver
