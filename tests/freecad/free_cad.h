// A real FreeCAD without windows, with the add-on and the drawings of drawing.py.
#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QProcess>
#include <QTemporaryDir>

namespace velmora::test {

class FreeCad {
  public:
    /// Starts it and waits until it is on the bus. Throws std::runtime_error when it is not.
    FreeCad();
    ~FreeCad();

    /// What an expression of Python gives among the names of drawing.py. Throws
    /// std::runtime_error with what Python raises.
    QJsonValue evaluate(const QString& expression);
    /// Typed into its terminal as soon as it asks there.
    void type_when_asked(const QByteArray& line);
    /// What it has written since then.
    [[nodiscard]] const QByteArray& output() const { return output_; }
    [[nodiscard]] bool is_running() const { return process_.state() != QProcess::NotRunning; }
    /// Ends it at once, as a crash does.
    void kill();

  private:
    void start();
    void answer();

    QTemporaryDir home_;
    QProcess process_;
    QByteArray output_;
    QByteArray line_;
};

} // namespace velmora::test
