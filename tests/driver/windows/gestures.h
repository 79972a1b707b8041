// What a person does with a control, as the events that come of it.
#pragma once

#include "windows/keys.h"

#include <QPointF>
#include <Qt>
#include <string>

class QAbstractItemView;
class QTabWidget;
class QWidget;

namespace velmora::driver {

/// Gives a control the focus as a click on it does; nothing where it takes none.
void focus_by_click(QWidget& control);

/// A key goes to the control; the window's shortcuts get it first, as on a display.
void press_key(QWidget& control, const Key& key);
void release_key(QWidget& control, const Key& key);
/// Types at the end of the control's text, key by key, as long as the control is there.
void type_text(QWidget& control, const std::string& text);
/// Puts a text in the place of all that stands there. A ScriptFault where no text can stand, or a
/// list that has no such entry.
void paste_text(QWidget& control, const std::string& text);

void click(QWidget& control);
void click_tab(QTabWidget& tabs, int tab);
void click_row(QAbstractItemView& list, int row);

enum class PointerStep { down, move, up };
/// `button` is the one that goes down or up, or is held during a move.
void pointer(QWidget& canvas, PointerStep step, Qt::MouseButton button, QPointF place, bool ctrl);

} // namespace velmora::driver
