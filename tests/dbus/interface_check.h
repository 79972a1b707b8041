// The published interface, as the test server holds each call and each answer against it.
#pragma once

#include <QHash>
#include <QString>

namespace velmora::test {

class PublishedInterface {
  public:
    /// Reads the introspection file. Throws std::runtime_error where it can't be read.
    explicit PublishedInterface(const QString& file);

    [[nodiscard]] bool has_method(const QString& name) const { return methods_.contains(name); }
    /// The types of a method's arguments and of its answer, joined.
    [[nodiscard]] QString arguments_of(const QString& method) const;
    [[nodiscard]] QString answer_of(const QString& method) const;
    [[nodiscard]] bool has_property(const QString& name) const;
    [[nodiscard]] const QString& text() const { return text_; }

  private:
    struct Method {
        QString in;
        QString out;
    };

    QString text_;
    QHash<QString, Method> methods_;
    QHash<QString, QString> properties_;
};

} // namespace velmora::test
