// What a person sees of a window's texts: which are cut, which letters are underlined.
#pragma once

#include <QString>
#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace velmora::test {

/// Calls `look` with each tab of the window in front, once where there are no tabs.
void on_each_page(QWidget& window, const std::function<void(int page)>& look);

/// "Label4" for each text that its widget cannot show whole, on every tab.
[[nodiscard]] std::vector<std::string> cut_texts(QWidget& window);

/// The letters that are underlined in what is visible, more than once where they clash.
[[nodiscard]] QString mnemonics(const QWidget& window);
/// Those that stand there twice on one page.
[[nodiscard]] QString clashing_mnemonics(QWidget& window);

} // namespace velmora::test
