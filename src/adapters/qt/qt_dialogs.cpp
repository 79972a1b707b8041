#include "adapters/qt/qt_dialogs.h"

#include "adapters/qt/file_filter.h"
#include "canvas/colours.h"
#include "runtime/paths.h"

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QMessageBox>

namespace velmora {

namespace {

constexpr int kButtonMask = 0x7;
constexpr int kIconMask = 0x70;

QString qt_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QWidget* owner() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

QMessageBox::StandardButtons buttons_of(int value) {
    switch (value & kButtonMask) {
    case buttons::ok_cancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case buttons::yes_no_cancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case buttons::yes_no:
        return QMessageBox::Yes | QMessageBox::No;
    default:
        return QMessageBox::Ok;
    }
}

QMessageBox::Icon icon_of(int value) {
    switch (value & kIconMask) {
    case buttons::critical:
        return QMessageBox::Critical;
    case buttons::question:
        return QMessageBox::Question;
    case buttons::exclamation:
        return QMessageBox::Warning;
    case buttons::information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

int answer_of(int button) {
    switch (button) {
    case QMessageBox::Cancel:
        return answer::cancel;
    case QMessageBox::Yes:
        return answer::yes;
    case QMessageBox::No:
        return answer::no;
    default:
        return answer::ok;
    }
}

QString start_of(const FileRequest& request) {
    return QString::fromStdString(runtime::join(request.folder, request.name));
}

std::uint32_t colour_value(const QColor& colour) {
    return static_cast<std::uint32_t>(colour.red() | colour.green() << 8 | colour.blue() << 16);
}

class QtDialogs : public Dialogs {
  public:
    int message(std::string_view text, int buttons_and_icon, std::string_view title) override {
        QMessageBox box(icon_of(buttons_and_icon), qt_text(title), qt_text(text),
                        buttons_of(buttons_and_icon), owner());
        box.setTextFormat(Qt::PlainText);
        box.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
        return answer_of(box.exec());
    }

    std::optional<std::string> input(std::string_view prompt, std::string_view title,
                                     std::string_view preset) override {
        bool taken = false;
        const QString text = QInputDialog::getText(owner(), qt_text(title), qt_text(prompt),
                                                   QLineEdit::Normal, qt_text(preset), &taken);
        if (!taken)
            return {};
        return text.toStdString();
    }

    std::string open_file(const FileRequest& request) override {
        return QFileDialog::getOpenFileName(owner(), qt_text(request.title), start_of(request),
                                            toolkit_filter(request.filter))
            .toStdString();
    }

    std::string save_file(const FileRequest& request) override {
        // Whether to write over a file is the program's own question.
        return QFileDialog::getSaveFileName(owner(), qt_text(request.title), start_of(request),
                                            toolkit_filter(request.filter), nullptr,
                                            QFileDialog::DontConfirmOverwrite)
            .toStdString();
    }

    std::optional<std::uint32_t> choose_colour(std::uint32_t present) override {
        const QColor chosen = QColorDialog::getColor(QColor(screen_rgb(present)), owner());
        if (!chosen.isValid())
            return {};
        return colour_value(chosen);
    }

    std::optional<FontChoice> choose_font(const FontChoice& present) override {
        QFont font = QApplication::font();
        if (!present.name.empty())
            font.setFamilies({qt_text(present.name)});
        if (present.size > 0)
            font.setPointSizeF(present.size);
        font.setBold(present.bold);
        font.setItalic(present.italic);
        bool taken = false;
        const QFont chosen = QFontDialog::getFont(&taken, font, owner());
        if (!taken)
            return {};
        return FontChoice{chosen.family().toStdString(), chosen.pointSizeF(), chosen.bold(),
                          chosen.italic()};
    }
};

} // namespace

std::unique_ptr<Dialogs> make_qt_dialogs() {
    return std::make_unique<QtDialogs>();
}

} // namespace velmora
