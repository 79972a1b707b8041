#include "ui/form_dialog.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QPushButton>
#include <algorithm>

namespace velmora {

FormDialog::FormDialog() {
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void FormDialog::reject() {
    close();
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
        return QDialog::keyPressEvent(event);
    if (auto* button = qobject_cast<QAbstractButton*>(focusWidget()))
        return button->click();
    const auto buttons = findChildren<QPushButton*>();
    const auto found = std::ranges::find_if(buttons, &QPushButton::isDefault);
    if (found != buttons.end())
        (*found)->click();
}

} // namespace velmora
