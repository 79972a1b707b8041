// Keys in the words of a script: "Delete", "S", "Ctrl+A", "Return", "Ctrl".
#pragma once

#include <QString>
#include <Qt>
#include <string>
#include <vector>

namespace velmora::driver {

struct Key {
    int code = 0; ///< Qt::Key
    Qt::KeyboardModifiers modifiers;
    QString text; ///< what the key types
};

/// The key of a word; a ScriptFault for what is none.
[[nodiscard]] Key key_of(const std::string& word);
/// The keys that type a text.
[[nodiscard]] std::vector<Key> keys_of_text(const std::string& text);
/// A modifier's own key.
[[nodiscard]] bool is_modifier(const Key& key);

} // namespace velmora::driver
