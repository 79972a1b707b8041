// A CAD of the tests in a process of its own: a scripted drawing behind the published interface.
// At the same object org.velmora.CadTest1.Say(s) takes a line of a script, or one of its own:
//
//     raw CLASS open|closed NUMBER ...   an entity with these numbers, whatever its class needs
//     run-of-lines N                     lines of length 1 along X
//     run-of-polylines N POINTS          open polylines of so many points each
//     block N                            no more than N entities an answer
//     claim N                            the drawing says that it has so many entities
//     mute METHOD                        the method is there and never answers
//     erase-after-read N                 the next block read, entity N goes
//     close-after-read                   the next block read, the active document is closed
//     pick-wait MILLISECONDS             the picks that follow are answered so much later
//     pick-short                         the picks that follow have no Y
//     dies METHOD                        the next call of the method ends the process
//     answer METHOD TEXT                 the next call of the method answers a text
//     unknown METHOD                     the method is not there
//     stray-error METHOD NAME TEXT       the next call fails with another error of the bus
//
// Ask(s) tells of the active drawing: log, colours, closed, numbers.
#pragma once

#include "interface_check.h"
#include "scripted/cad.h"

#include <QDBusVirtualObject>
#include <QSet>

#include <optional>

namespace velmora::test {

class CadServer : public QDBusVirtualObject {
  public:
    explicit CadServer(const QString& interface_file);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override;

  private:
    struct StrayError {
        QString name;
        QString text;
    };

    void say(const QString& line);
    [[nodiscard]] QStringList ask(const QString& about) const;
    bool say_own(const QStringList& words);
    bool answer_property(const QDBusMessage& message, const QDBusConnection& bus);
    bool answer_call(const QDBusMessage& message, const QDBusConnection& bus);
    void send_pick(const QDBusMessage& message, const QDBusConnection& bus);
    [[nodiscard]] QVariant value_of(const QString& method, const QVariantList& arguments);
    [[nodiscard]] QVariant application_value(const QString& method, const QVariantList& arguments);
    [[nodiscard]] QVariant document_value(const QString& method, driver::CadDrawing& drawing,
                                          const QVariantList& arguments);
    [[nodiscard]] QVariant entities(driver::CadDrawing& drawing, int first, int count);
    [[nodiscard]] QVariant add_polyline(driver::CadDrawing& drawing, const QVariant& coordinates);

    [[nodiscard]] driver::CadDrawing& drawing(const QString& id) const;
    [[nodiscard]] static driver::CadEntity& entity(driver::CadDrawing& drawing,
                                                   const QString& handle);

    PublishedInterface interface_;
    driver::CadState state_;
    int most_in_block_ = 1000000;
    std::optional<int> erase_after_read_;
    std::optional<int> claimed_;
    QSet<QString> mute_;
    int pick_wait_ = 0;
    bool pick_short_ = false;
    bool close_after_read_ = false;
    QSet<QString> dying_;
    QHash<QString, QString> other_answers_;
    QHash<QString, StrayError> stray_errors_;
    QSet<QString> unknown_;
};

} // namespace velmora::test
