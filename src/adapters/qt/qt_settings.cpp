#include "adapters/qt/qt_settings.h"

#include "adapters/qt/settling.h"
#include "runtime/error.h"
#include "runtime/file_beside.h"
#include "toolkit/qt_text.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QSet>
#include <QSettings>
#include <map>

namespace velmora {

namespace {

QString key_of(std::string_view section, std::string_view key) {
    const std::string joined = std::string(section) + "/" + std::string(key);
    return QString::fromStdString(joined);
}

// A comma that someone wrote into the file without quotes makes a list.
QString text_of(const QSettings& store, const QString& key) {
    return store.value(key).toStringList().join(',');
}

using Texts = std::map<QString, QString>;

Texts texts_of(const QSettings& store) {
    Texts texts;
    for (const QString& key : store.allKeys())
        texts[key] = text_of(store, key);
    return texts;
}

bool write(const Texts& texts, const std::string& path) {
    QSettings file(qt_text(path), QSettings::IniFormat);
    for (const auto& [key, text] : texts)
        file.setValue(key, text);
    file.sync();
    return file.status() == QSettings::NoError;
}

/// Lays a file of these texts over the one at the path, whole or not at all. It is read back first:
/// the toolkit does not always say that a disk was full.
bool replace(const std::string& path, const Texts& texts) {
    runtime::FileBeside written(path);
    // Under another name: what was read of a name once is not read again.
    runtime::FileBeside checked(path);
    if (!write(texts, written.path()))
        return false;
    written.take_permissions();
    settle_on_disk(qt_text(written.path()));
    written.take_name(checked.path());
    if (texts_of(QSettings(qt_text(checked.path()), QSettings::IniFormat)) != texts)
        return false;
    checked.take_name();
    return true;
}

/// What is saved waits here until it is kept.
class QtSettings : public SettingsStore {
  public:
    explicit QtSettings(std::unique_ptr<QSettings> store) : store_(std::move(store)) {
        read_again();
    }
    ~QtSettings() override { (void)keep(); }
    QtSettings(const QtSettings&) = delete;
    QtSettings& operator=(const QtSettings&) = delete;

    std::optional<std::string> get(std::string_view section, std::string_view key) override {
        const QString name = key_of(section, key);
        if (const auto waiting = waiting_.find(name); waiting != waiting_.end())
            return waiting->second.toStdString();
        if (!store_->contains(name))
            return {};
        return text_of(*store_, name).toStdString();
    }

    void save(std::string_view section, std::string_view key, std::string_view value) override {
        waiting_[key_of(section, key)] = qt_text(value);
    }

    bool keep() override {
        bool kept = false;
        trap([&] { kept = waiting_.empty() ? read_again() : keep_waiting(); },
             [](const RuntimeError&) {});
        return kept;
    }

    std::string place() const override { return store_->fileName().toStdString(); }

  private:
    [[nodiscard]] bool is_file() const { return QDir::isAbsolutePath(store_->fileName()); }

    /// Brings in what others stored. False where a key is gone: nobody takes keys away, so the disk
    /// failed.
    bool read_again() {
        store_->sync();
        const QStringList keys = store_->allKeys();
        const QSet<QString> present(keys.begin(), keys.end());
        if (store_->status() != QSettings::NoError || !present.contains(known_))
            return false;
        known_ = present;
        return true;
    }

    bool keep_waiting() {
        if (!(is_file() ? keep_in_file() : keep_in_registry()))
            return false;
        waiting_.clear();
        return read_again();
    }

    bool keep_in_registry() {
        for (const auto& [key, text] : waiting_)
            store_->setValue(key, text);
        return read_again();
    }

    bool keep_in_file() {
        const QString file = store_->fileName();
        QDir().mkpath(QFileInfo(file).path());
        constexpr int patience = 2000; // ms
        QLockFile lock(file + ".lock");
        if (!lock.tryLock(patience) || !read_again())
            return false;
        Texts texts = texts_of(*store_);
        for (const auto& [key, text] : waiting_)
            texts[key] = text;
        return replace(runtime::link_target(file.toStdString()), texts);
    }

    std::unique_ptr<QSettings> store_; ///< read only, but for a registry
    Texts waiting_;
    QSet<QString> known_;
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
