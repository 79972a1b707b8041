#include "adapters/qt/qt_settings.h"

#include "toolkit/qt_text.h"

#include <QSettings>

namespace velmora {

namespace {

QString key_of(std::string_view section, std::string_view key) {
    const std::string joined = std::string(section) + "/" + std::string(key);
    return QString::fromStdString(joined);
}

class QtSettings : public SettingsStore {
  public:
    explicit QtSettings(std::unique_ptr<QSettings> store) : store_(std::move(store)) {}

    std::optional<std::string> get(std::string_view section, std::string_view key) override {
        const QVariant value = store_->value(key_of(section, key));
        if (!value.isValid())
            return {};
        // A comma that someone wrote into the file without quotes makes a list.
        return value.toStringList().join(',').toStdString();
    }

    void save(std::string_view section, std::string_view key, std::string_view value) override {
        store_->setValue(key_of(section, key), qt_text(value));
    }

    bool keep() override {
        store_->sync();
        // A lock that could not be had is not told; what waits goes out at the next time.
        store_->sync();
        return store_->status() == QSettings::NoError;
    }

    std::string place() const override { return store_->fileName().toStdString(); }

  private:
    std::unique_ptr<QSettings> store_;
};

} // namespace

std::unique_ptr<SettingsStore> make_qt_settings() {
    return std::make_unique<QtSettings>(std::make_unique<QSettings>(
        QSettings::NativeFormat, QSettings::UserScope, "Velmora", "Velmora"));
}

std::unique_ptr<SettingsStore> make_file_settings(const std::string& path) {
    return std::make_unique<QtSettings>(
        std::make_unique<QSettings>(QString::fromStdString(path), QSettings::IniFormat));
}

} // namespace velmora
