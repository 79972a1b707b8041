// A file dropped on a window of the program.
#pragma once

#include <QObject>
#include <functional>
#include <string>

class QWidget;

namespace velmora {

/// Takes a drag that holds one file of this machine, and hands on the file's path.
class FileDrop : public QObject {
  public:
    FileDrop(QWidget& window, std::function<void(const std::string& path)> dropped);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<void(const std::string& path)> dropped_;
};

} // namespace velmora
