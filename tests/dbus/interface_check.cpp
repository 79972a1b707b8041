#include "interface_check.h"

#include <QFile>
#include <QXmlStreamReader>

#include <stdexcept>

namespace velmora::test {

PublishedInterface::PublishedInterface(const QString& file) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        throw std::runtime_error("no " + file.toStdString());
    text_ = QString::fromUtf8(source.readAll());
    QXmlStreamReader xml(text_);
    QString method;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const auto named = [&](const char* name) {
            return xml.attributes().value(QLatin1String(name)).toString();
        };
        if (xml.name() == QLatin1String("method"))
            methods_[method = named("name")];
        else if (xml.name() == QLatin1String("property"))
            properties_[named("name")] = named("type");
        else if (xml.name() == QLatin1String("arg"))
            (named("direction") == "in" ? methods_[method].in : methods_[method].out) +=
                named("type");
    }
    if (xml.hasError())
        throw std::runtime_error(xml.errorString().toStdString());
}

QString PublishedInterface::arguments_of(const QString& method) const {
    return methods_.value(method).in;
}

QString PublishedInterface::answer_of(const QString& method) const {
    return methods_.value(method).out;
}

bool PublishedInterface::has_property(const QString& name) const {
    return properties_.contains(name);
}

} // namespace velmora::test
