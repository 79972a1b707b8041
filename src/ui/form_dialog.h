// The widget of a window other than the main one: Enter works the button that has the focus, or the
// form's default button where no button has it; Esc is the close box. A form whose boxes take Enter
// as one of their own keys has no default button.
#pragma once

#include <QDialog>

namespace velmora {

class FormDialog : public QDialog {
    Q_OBJECT
  public:
    FormDialog();
    /// The host unloads the window; it decides whether the dialog goes.
    void reject() override;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace velmora
