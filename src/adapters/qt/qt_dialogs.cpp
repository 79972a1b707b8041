#include "adapters/qt/qt_dialogs.h"

#include "adapters/qt/file_filter.h"
#include "canvas/colours.h"
#include "runtime/paths.h"
#include "toolkit/qt_text.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

namespace velmora {

namespace {

constexpr int kButtonMask = 0x7;
constexpr int kIconMask = 0x70;

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

/// The style of a family that comes nearest to the font. The dialog looks for a style by its name,
/// in the language of the program; where it finds none it takes whichever is the first.
QString style_of(const QString& family, const FontChoice& font) {
    const int weight = font.bold ? QFont::Bold : QFont::Normal;
    const auto distance = [&](const QString& style) {
        const QFont styled = QFontDatabase::font(family, style, 1);
        return std::tuple(styled.italic() != font.italic, std::abs(styled.weight() - weight),
                          style.size()); // "Book" before "Condensed"
    };
    const QStringList styles = QFontDatabase::styles(family);
    const auto nearest = std::ranges::min_element(styles, {}, distance);
    return nearest == styles.end() ? QString() : *nearest;
}

QFont font_of(const FontChoice& choice) {
    const QFont named = choice.name.empty() ? QApplication::font() : QFont(qt_text(choice.name));
    const QString family = QFontInfo(named).family();
    QFont font = QFontDatabase::font(family, style_of(family, choice), 1);
    font.setPointSizeF(choice.size > 0 ? choice.size : QApplication::font().pointSizeF());
    return font;
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

/// The name with the machine's own separators.
QFileInfo named_file(const FileRequest& request) {
    return QFileInfo(qt_text(runtime::path_text(runtime::native_path(request.name))));
}

/// Where the dialog opens: an absolute name has its own folder, as long as that is there.
QString folder_of(const FileRequest& request) {
    const QFileInfo named = named_file(request);
    if (named.isAbsolute() && named.dir().exists())
        return named.dir().absolutePath();
    return qt_text(request.folder);
}

/// The dialog opens in its folder with the name filled in. What `prepare` sets comes first: the
/// name is completed by it. Empty when cancelled.
std::string ask_for_file(const FileRequest& request,
                         const std::function<void(QFileDialog&)>& prepare) {
    QFileDialog dialog(owner(), qt_text(request.title), folder_of(request),
                       toolkit_filter(request.filter));
    dialog.setSupportedSchemes({QStringLiteral("file")});
    prepare(dialog);
    if (!request.name.empty())
        dialog.selectFile(named_file(request).fileName());
    if (dialog.exec() != QDialog::Accepted)
        return {};
    return dialog.selectedFiles().value(0).toStdString();
}

void prepare_to_open(QFileDialog& dialog) {
    dialog.setFileMode(QFileDialog::ExistingFile);
}

void prepare_to_save(QFileDialog& dialog, const std::string& extension) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(qt_text(extension)); // with its point or without
    // Whether to write over a file is the program's own question.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
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

    int message_with_icon(int icon, std::string_view text, int buttons_and_icon,
                          std::string_view title) override {
        const bool coded = (buttons_and_icon & kIconMask) != 0;
        return message(text, coded ? buttons_and_icon : buttons_and_icon + icon, title);
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
        return ask_for_file(request, prepare_to_open);
    }

    std::string save_file(const FileRequest& request) override {
        return ask_for_file(request, [&request](QFileDialog& dialog) {
            prepare_to_save(dialog, request.extension);
        });
    }

    std::optional<std::uint32_t> choose_colour(std::uint32_t present) override {
        const QColor chosen = QColorDialog::getColor(QColor(screen_rgb(present)), owner());
        if (!chosen.isValid())
            return {};
        return colour_value(chosen);
    }

    std::optional<FontChoice> choose_font(const FontChoice& present) override {
        bool taken = false;
        const QFont chosen = QFontDialog::getFont(&taken, font_of(present), owner());
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
