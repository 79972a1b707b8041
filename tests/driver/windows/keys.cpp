#include "windows/keys.h"

#include "script/fault.h"
#include "script/words.h"

#include <QKeySequence>
#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace velmora::driver {

namespace {

struct Modifier {
    std::string_view name;
    Qt::Key key;
    Qt::KeyboardModifier flag;
};

constexpr auto kModifiers = std::to_array<Modifier>({
    {"Ctrl", Qt::Key_Control, Qt::ControlModifier},
    {"Shift", Qt::Key_Shift, Qt::ShiftModifier},
    {"Alt", Qt::Key_Alt, Qt::AltModifier},
    {"Meta", Qt::Key_Meta, Qt::MetaModifier},
});

constexpr auto kTypingKeys = std::to_array<std::pair<int, const char*>>({
    {Qt::Key_Return, "\r"},
    {Qt::Key_Enter, "\r"},
    {Qt::Key_Backspace, "\b"},
    {Qt::Key_Tab, "\t"},
    {Qt::Key_Escape, "\x1b"},
    {Qt::Key_Delete, "\x7f"},
});

constexpr int kLastLatinKey = 0xFF;

QString letter_of(int code, Qt::KeyboardModifiers modifiers) {
    const QString letter(QChar(static_cast<char16_t>(code)));
    return modifiers & Qt::ShiftModifier ? letter : letter.toLower();
}

QString typed_by(int code, Qt::KeyboardModifiers modifiers) {
    const auto found =
        std::ranges::find(kTypingKeys, code, [](const auto& typing) { return typing.first; });
    if (found != kTypingKeys.end())
        return QString::fromLatin1(found->second);
    const bool command = modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    if (command || code < Qt::Key_Space || code > kLastLatinKey)
        return {};
    return letter_of(code, modifiers);
}

Key key_of_letter(QChar letter) {
    if (letter == u'\n' || letter == u'\r')
        return {Qt::Key_Return, {}, QStringLiteral("\r")};
    if (letter == u'\t')
        return {Qt::Key_Tab, {}, QStringLiteral("\t")};
    const QChar capital = letter.toUpper();
    const int code = capital.unicode() <= kLastLatinKey ? capital.unicode() : int{Qt::Key_unknown};
    const bool shifted = letter.isLetter() && letter.isUpper();
    return {code, shifted ? Qt::ShiftModifier : Qt::NoModifier, letter};
}

} // namespace

Key key_of(const std::string& word) {
    const auto modifier = std::ranges::find(kModifiers, word, &Modifier::name);
    if (modifier != kModifiers.end())
        return {modifier->key, modifier->flag, {}};
    const auto keys =
        QKeySequence::fromString(QString::fromStdString(word), QKeySequence::PortableText);
    if (keys.count() != 1 || keys[0].key() == Qt::Key_unknown)
        fault(word_text(word) + " is no key");
    const auto modifiers = keys[0].keyboardModifiers();
    return {keys[0].key(), modifiers, typed_by(keys[0].key(), modifiers)};
}

std::vector<Key> keys_of_text(const std::string& text) {
    std::vector<Key> keys;
    for (const QChar letter : QString::fromStdString(text))
        keys.push_back(key_of_letter(letter));
    return keys;
}

bool is_modifier(const Key& key) {
    return std::ranges::find(kModifiers, key.code, &Modifier::key) != kModifiers.end();
}

} // namespace velmora::driver
