#include "windows/shown_texts.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QGroupBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

namespace velmora::test {

namespace {

bool is_cut(const QWidget& widget) {
    if (const auto* frame = qobject_cast<const QGroupBox*>(&widget))
        return frame->width() < frame->minimumSizeHint().width();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const bool shows_text =
        (label != nullptr && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) ||
        qobject_cast<const QAbstractButton*>(&widget) != nullptr;
    if (!shows_text)
        return false;
    if (label != nullptr && label->wordWrap())
        return label->height() < label->heightForWidth(label->width());
    const QSize needed = widget.sizeHint();
    return widget.width() < needed.width() || widget.height() < needed.height();
}

} // namespace

void on_each_page(QWidget& window, const std::function<void(int page)>& look) {
    auto* tabs = window.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs == nullptr ? 1 : tabs->count()); ++page) {
        if (tabs != nullptr)
            tabs->setCurrentIndex(page);
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
        look(page);
    }
}

std::vector<std::string> cut_texts(QWidget& window) {
    std::vector<std::string> result;
    on_each_page(window, [&](int) {
        for (const QWidget* widget : window.findChildren<QWidget*>())
            if (widget->isVisible() && is_cut(*widget))
                result.push_back(widget->objectName().toStdString());
    });
    return result;
}

QString mnemonics(const QWidget& window) {
    QString letters;
    const auto add = [&](const QString& text) {
        const qsizetype mark = text.indexOf('&');
        if (mark >= 0 && mark + 1 < text.size())
            letters += text.at(mark + 1).toLower();
    };
    for (const auto* button : window.findChildren<QAbstractButton*>())
        if (button->isVisible())
            add(button->text());
    for (const auto* label : window.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy() != nullptr)
            add(label->text());
    if (const auto* tabs = window.findChild<QTabBar*>())
        for (int tab = 0; tab < tabs->count(); ++tab)
            add(tabs->tabText(tab));
    return letters;
}

QString clashing_mnemonics(QWidget& window) {
    QString twice;
    on_each_page(window, [&](int) {
        const QString letters = mnemonics(window);
        for (const QChar letter : letters)
            if (letters.count(letter) > 1)
                twice += letter;
    });
    return twice;
}

} // namespace velmora::test
