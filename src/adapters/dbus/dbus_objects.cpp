#include "adapters/dbus/dbus_objects.h"

#include "adapters/dbus/dbus_entity.h"
#include "runtime/error.h"
#include "toolkit/qt_text.h"

#include <QDBusArgument>
#include <QStringList>

#include <utility>

namespace velmora {

DbusDocument::DbusDocument(std::shared_ptr<const CadLink> link, QString document)
    : link_(link), document_(document), entities_(std::move(link), std::move(document)) {}

std::string DbusDocument::Name() {
    return link_->ask("DocumentName", "s", {document_}).toString().toStdString();
}

void DbusDocument::Activate() {
    link_->tell("ActivateDocument", {document_});
}

std::int32_t DbusDocument::Count() {
    return entities_.count();
}

std::unique_ptr<AcadEntity> DbusDocument::Item(std::int32_t index) {
    return std::make_unique<DbusEntity>(link_, document_, entities_.at(index));
}

std::unique_ptr<AcadEntity>
DbusDocument::AddLightWeightPolyline(std::span<const double> coordinates) {
    const auto numbers = QVariant::fromValue(QList<double>(coordinates.begin(), coordinates.end()));
    EntityRecord added{.handle = link_->ask("AddPolyline", "s", {document_, numbers}).toString(),
                       .class_name = "AcDbPolyline",
                       .numbers = {coordinates.begin(), coordinates.end()}};
    return std::make_unique<DbusEntity>(link_, document_, std::move(added));
}

std::vector<double> DbusDocument::GetPoint(std::string_view prompt) {
    const auto point = qdbus_cast<QList<double>>(
        link_->ask_user("GetPoint", "ad", {document_, qt_text(prompt)}).value<QDBusArgument>());
    return {point.cbegin(), point.cend()};
}

/// The capture stands, whatever becomes of a word on it: an older CAD knows none.
std::string DbusDocument::Remarks() {
    std::string remarks;
    trap([&] { remarks = link_->ask("Remarks", "s", {document_}).toString().toStdString(); },
         [](const RuntimeError&) {});
    return remarks;
}

DbusApplication::DbusApplication(std::shared_ptr<const CadLink> link) : link_(std::move(link)) {}

std::string DbusApplication::Name() {
    return link_->property("Name").toStdString();
}

std::string DbusApplication::Version() {
    return link_->property("Version").toStdString();
}

std::int32_t DbusApplication::Documents_Count() {
    return static_cast<std::int32_t>(link_->ask("Documents", "as").toStringList().size());
}

void DbusApplication::Documents_Add(std::string_view template_path) {
    std::ignore = link_->ask("AddDocument", "s", {qt_text(template_path)});
}

std::shared_ptr<AcadDocument> DbusApplication::ActiveDocument() {
    return std::make_shared<DbusDocument>(link_, link_->ask("ActiveDocument", "s").toString());
}

void DbusApplication::ZoomExtents() {
    link_->tell("ZoomExtents");
}

void DbusApplication::set_WindowState(int state) {
    link_->tell("SetWindowState", {state});
}

} // namespace velmora
