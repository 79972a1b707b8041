// A small CAD in another process, on the bus that the caller runs on.
#pragma once

#include <QProcess>
#include <QStringList>

namespace velmora::test {

/// The server's process, for the life of this.
class RemoteCad {
  public:
    RemoteCad();
    ~RemoteCad();

    void say(const QString& line);
    [[nodiscard]] QStringList ask(const QString& about);
    /// Ends the process at once, as a crash does.
    void kill();
    /// Stops it: it lives and answers nothing.
    void freeze() const;
    void thaw() const;

  private:
    QProcess process_;
};

} // namespace velmora::test
