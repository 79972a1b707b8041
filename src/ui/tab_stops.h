// Exclusive buttons that the Tab key visits one after the other. The toolkit takes all of a group
// but the one that had the focus out of the tab order; here each stays in it, and the arrow keys go
// from one to the next as well.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

namespace velmora {

class TabStops : public QObject {
    Q_OBJECT
  public:
    TabStops(QObject& parent, const std::vector<QWidget*>& stops);

  private:
    void restore();

    std::vector<QPointer<QWidget>> stops_; ///< a closing window lets the focus go in between
};

} // namespace velmora
