// A window's widgets as the literals see them: in the order of the form, with the kinds, texts and
// tips that its controls have.
#pragma once

#include "platform/form.h"

#include <QPointer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class QObject;
class QWidget;

namespace velmora {

class WidgetForm : public Form {
  public:
    /// `text_set` is called after a text box was given a text.
    WidgetForm(QWidget& window, std::function<void()> text_set);
    ~WidgetForm() override;

    /// The form's controls in its own order.
    void list(const std::vector<QObject*>& controls);

    [[nodiscard]] std::string name() const override;
    [[nodiscard]] std::string caption() const override;
    void set_caption(std::string_view caption) override;
    [[nodiscard]] int control_count() const override;
    FormControl& control(int position) override;

  private:
    QWidget& window_;
    std::function<void()> text_set_;
    std::vector<std::unique_ptr<FormControl>> controls_;
};

} // namespace velmora
