#include "ui/form_dialog.h"

#include <QAbstractButton>
#include <QKeyEvent>

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
        button->click();
}

} // namespace velmora
