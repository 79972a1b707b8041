#include "cad_server.h"

#include "runtime/error.h"
#include "script/words.h"
#include "scripted/cad_lines.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QTimer>

#include <algorithm>
#include <cstdlib>

namespace velmora::test {

/// An entity as the interface carries it.
struct WireEntity {
    QString handle;
    QString class_name;
    bool closed = false;
    QList<double> numbers;
};

QDBusArgument& operator<<(QDBusArgument& stream, const WireEntity& entity) {
    stream.beginStructure();
    stream << entity.handle << entity.class_name << entity.closed << entity.numbers;
    stream.endStructure();
    return stream;
}

// Nobody sends one here.
const QDBusArgument& operator>>(const QDBusArgument& stream, WireEntity&) {
    return stream;
}

namespace {

constexpr auto kInterface = "org.velmora.Cad1";
constexpr auto kControl = "org.velmora.CadTest1";

/// An address is a name that nobody else has.
QString name_of(const void* object) {
    return QString::number(reinterpret_cast<quintptr>(object), 16);
}

std::vector<double> numbers_of(const QVariant& array) {
    const auto numbers = qdbus_cast<QList<double>>(array);
    return {numbers.begin(), numbers.end()};
}

QDBusMessage error_reply(const QDBusMessage& message, const RuntimeError& failure) {
    const auto number = QString::number(static_cast<quint32>(failure.number), 16);
    return message.createErrorReply("org.velmora.Cad1.Error.E" +
                                        number.toUpper().rightJustified(8, '0'),
                                    QString::fromStdString(failure.description));
}

/// The members that a block reads of an entity, for the failures of a script.
std::vector<std::string_view> members_of(const driver::CadEntity& entity) {
    using enum driver::CadShape;
    switch (entity.shape) {
    case line:
        return {"AcadLine.StartPoint", "AcadLine.EndPoint"};
    case point:
        return {"AcadEntity.Coordinates"};
    case polyline:
        return {"AcadEntity.Coordinates", "AcadLWPolyline.Closed"};
    case circle:
        return {"AcadEntity.Center", "AcadEntity.Radius"};
    case arc:
        return {"AcadEntity.Center", "AcadEntity.Radius", "AcadArc.StartAngle", "AcadArc.EndAngle"};
    case spline:
        return {"AcadSpline.NumberOfControlPoints", "AcadSpline.GetControlPoint"};
    case other:
        break;
    }
    return {};
}

} // namespace

CadServer::CadServer(const QString& interface_file) : interface_(interface_file) {
    qDBusRegisterMetaType<WireEntity>();
    qDBusRegisterMetaType<QList<WireEntity>>();
    state_.running = true;
    state_.no_pick = [] {
        raise(error::invalid_call, "nothing to pick");
    };
}

QString CadServer::introspect(const QString&) const {
    return interface_.text();
}

bool CadServer::handleMessage(const QDBusMessage& message, const QDBusConnection& bus) {
    if (message.interface() == kControl) {
        const QString line = message.arguments().constFirst().toString();
        if (message.member() == "Ask") {
            bus.send(message.createReply(ask(line)));
        } else {
            say(line);
            bus.send(message.createReply());
        }
        return true;
    }
    if (message.interface() == "org.freedesktop.DBus.Properties")
        return answer_property(message, bus);
    return message.interface() == kInterface && answer_call(message, bus);
}

void CadServer::say(const QString& line) {
    if (say_own(line.split(' ')))
        return;
    const auto words = driver::split_words(line.toStdString());
    driver::cad_line(state_, words);
}

bool CadServer::say_own(const QStringList& words) {
    const QString& what = words[0];
    if (what == "raw") {
        auto added = std::make_shared<driver::CadEntity>();
        added->shape = driver::CadShape::polyline;
        added->ObjectName = words[1].toStdString();
        added->closed = words[2] == "closed";
        for (const QString& number : words.sliced(3))
            added->numbers.push_back(number.toDouble());
        state_.application->active->model_space.push_back(added);
    } else if (what == "run-of-lines") {
        for (int i = 0; i < words[1].toInt(); ++i)
            say(QString("line %1 0 %2 0").arg(i).arg(i + 1));
    } else if (what == "run-of-polylines") {
        const QString points = QString(" 0.5 0.25").repeated(words[2].toInt());
        for (int i = 0; i < words[1].toInt(); ++i)
            say("raw AcDbPolyline open" + points);
    } else if (what == "claim") {
        claimed_ = words[1].toInt();
    } else if (what == "mute") {
        mute_.insert(words[1]);
    } else if (what == "block") {
        most_in_block_ = words[1].toInt();
    } else if (what == "erase-after-read") {
        erase_after_read_ = words[1].toInt();
    } else if (what == "close-after-read") {
        close_after_read_ = true;
    } else if (what == "pick-wait") {
        pick_wait_ = words[1].toInt();
    } else if (what == "pick-short") {
        pick_short_ = true;
    } else if (what == "dies") {
        dying_.insert(words[1]);
    } else if (what == "answer") {
        other_answers_[words[1]] = words[2];
    } else if (what == "unknown") {
        unknown_.insert(words[1]);
    } else if (what == "stray-error") {
        stray_errors_[words[1]] = {words[2], words.sliced(3).join(' ')};
    } else {
        return false;
    }
    return true;
}

QStringList CadServer::ask(const QString& about) const {
    QStringList answer;
    if (about == "log") {
        for (const std::string& line : state_.log)
            answer += QString::fromStdString(line);
    }
    if (!state_.application->active)
        return answer;
    for (const auto& one : state_.application->active->model_space) {
        if (about == "colours")
            answer += QString::number(one->color);
        if (about == "closed")
            answer += one->closed ? "closed" : "open";
        if (about == "numbers") {
            for (const double number : one->numbers)
                answer += QString::number(number, 'g', 17);
        }
    }
    return answer;
}

bool CadServer::answer_property(const QDBusMessage& message, const QDBusConnection& bus) {
    const QString name = message.arguments().value(1).toString();
    if (message.member() != "Get" || !interface_.has_property(name) || unknown_.contains(name))
        return false;
    if (other_answers_.contains(name)) {
        bus.send(message.createReply(QVariant::fromValue(QDBusVariant(1.5))));
        return true;
    }
    try {
        state_.use("AcadApplication." + name.toStdString());
    } catch (const RuntimeError& failure) {
        bus.send(error_reply(message, failure));
        return true;
    }
    const auto& text = name == "Name" ? state_.application->name : state_.application->version;
    bus.send(message.createReply(QVariant::fromValue(QDBusVariant(QString::fromStdString(text)))));
    return true;
}

bool CadServer::answer_call(const QDBusMessage& message, const QDBusConnection& bus) {
    const QString method = message.member();
    if (!interface_.has_method(method) || unknown_.contains(method))
        return false;
    if (message.signature() != interface_.arguments_of(method)) {
        bus.send(message.createErrorReply(QDBusError::InvalidSignature,
                                          method + " takes " + interface_.arguments_of(method)));
        return true;
    }
    if (stray_errors_.contains(method)) {
        const StrayError stray = stray_errors_.take(method);
        bus.send(message.createErrorReply(stray.name, stray.text));
        return true;
    }
    if (other_answers_.contains(method)) {
        bus.send(message.createReply(other_answers_.take(method)));
        return true;
    }
    if (mute_.contains(method))
        return true;
    if (dying_.contains(method)) {
        QTimer::singleShot(pick_wait_, [] { std::_Exit(1); });
        return true;
    }
    if (method == "GetPoint") {
        QTimer::singleShot(pick_wait_, this, [=, this] { send_pick(message, bus); });
        return true;
    }
    try {
        const QVariant value = value_of(method, message.arguments());
        bus.send(value.isValid() ? message.createReply(value) : message.createReply());
    } catch (const RuntimeError& failure) {
        bus.send(error_reply(message, failure));
    }
    return true;
}

void CadServer::send_pick(const QDBusMessage& message, const QDBusConnection& bus) {
    try {
        bus.send(message.createReply(value_of("GetPoint", message.arguments())));
    } catch (const RuntimeError& failure) {
        bus.send(error_reply(message, failure));
    }
}

QVariant CadServer::value_of(const QString& method, const QVariantList& arguments) {
    const bool on_document =
        interface_.arguments_of(method).startsWith('s') && method != "AddDocument";
    if (!on_document)
        return application_value(method, arguments);
    return document_value(method, drawing(arguments[0].toString()), arguments);
}

QVariant CadServer::application_value(const QString& method, const QVariantList& arguments) {
    driver::ScriptedCad cad(state_);
    const auto application = cad.GetObject();
    driver::CadApplication& held = *state_.application;
    if (method == "Activate") {
        cad.AppActivate();
    } else if (method == "ZoomExtents") {
        application->ZoomExtents();
    } else if (method == "SetWindowState") {
        application->set_WindowState(arguments[0].toInt());
    } else if (method == "Documents") {
        std::ignore = application->Documents_Count();
        QStringList names;
        for (const auto& one : held.drawings)
            names += name_of(one.get());
        return names;
    } else if (method == "ActiveDocument") {
        std::ignore = application->ActiveDocument();
        return name_of(held.active.get());
    } else if (method == "AddDocument") {
        application->Documents_Add(arguments[0].toString().toStdString());
        return name_of(held.active.get());
    }
    return {};
}

QVariant CadServer::document_value(const QString& method, driver::CadDrawing& drawing,
                                   const QVariantList& arguments) {
    if (method == "ReadEntities")
        return entities(drawing, arguments[1].toInt(), arguments[2].toInt());
    if (method == "AddPolyline")
        return add_polyline(drawing, arguments[1]);
    if (method == "DocumentName") {
        state_.use("AcadDocument.Name");
        return QString::fromStdString(drawing.name);
    }
    if (method == "EntityCount") {
        state_.use("ModelSpace.Count");
        return claimed_.value_or(static_cast<int>(drawing.model_space.size()));
    }
    if (method == "ActivateDocument") {
        state_.log.emplace_back("Activate");
        state_.use("AcadDocument.Activate");
    } else if (method == "SetColor") {
        state_.use("AcadEntity.Color");
        entity(drawing, arguments[1].toString()).color = arguments[2].toInt();
    } else if (method == "SetClosed") {
        state_.use("AcadLWPolyline.Closed");
        entity(drawing, arguments[1].toString()).closed = arguments[2].toBool();
    } else if (method == "GetPoint") {
        const auto point = driver::ScriptedCad(state_).GetObject()->ActiveDocument()->GetPoint("");
        return QVariant::fromValue(
            QList<double>(point.begin(), pick_short_ ? point.begin() + 1 : point.end()));
    }
    return {};
}

QVariant CadServer::entities(driver::CadDrawing& drawing, int first, int count) {
    const auto& all = drawing.model_space;
    const int end = std::min({static_cast<int>(all.size()), first + count, first + most_in_block_});
    QList<WireEntity> block;
    for (int i = first; i < end; ++i) {
        const driver::CadEntity& one = *all[static_cast<std::size_t>(i)];
        state_.use("ModelSpace.Item");
        state_.use("AcadEntity.ObjectName");
        for (const std::string_view member : members_of(one))
            state_.use(member);
        block.append({name_of(&one), QString::fromStdString(one.ObjectName), one.closed,
                      QList<double>(one.numbers.begin(), one.numbers.end())});
    }
    if (erase_after_read_) {
        drawing.model_space.erase(drawing.model_space.begin() + *erase_after_read_);
        erase_after_read_.reset();
    }
    if (close_after_read_)
        say("no-document");
    return QVariant::fromValue(block);
}

QVariant CadServer::add_polyline(driver::CadDrawing& drawing, const QVariant& coordinates) {
    std::ignore = driver::ScriptedCad(state_).GetObject()->ActiveDocument()->AddLightWeightPolyline(
        numbers_of(coordinates));
    return name_of(drawing.model_space.back().get());
}

driver::CadDrawing& CadServer::drawing(const QString& id) const {
    for (const auto& one : state_.application->drawings) {
        if (name_of(one.get()) == id)
            return *one;
    }
    raise(error::server_unavailable);
}

driver::CadEntity& CadServer::entity(driver::CadDrawing& drawing, const QString& handle) {
    for (const auto& one : drawing.model_space) {
        if (name_of(one.get()) == handle)
            return *one;
    }
    raise(error::object_required);
}

} // namespace velmora::test
