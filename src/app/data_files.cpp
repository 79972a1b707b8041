#include "app/data_files.h"

#include "adapters/sqlite/language_texts.h"
#include "platform/database.h"
#include "runtime/error.h"
#include "runtime/paths.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSaveFile>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace velmora {

namespace {

namespace fs = std::filesystem;

constexpr const char* kTemplate = "acad.dwt";
constexpr const char* kFiles[] = {kLanguageDatabase, "mdbwav0.wav",    "mdbwav1.wav",
                                  "mdbwav7.wav",     kTemplate,        "deployment.txt",
                                  "velmora.chm",     "velmora_en.chm", "velmora_fr.chm",
                                  "velmora_pt.chm",  "velmora_it.chm"};
constexpr const char* kHelpPages = "help";
constexpr const char* kMachines = "machines";
constexpr const char* kRecord = "installed.txt";
const QByteArray kDamaged = "damaged";

QString qt_path(const fs::path& path) {
    return QString::fromStdString(runtime::path_text(path));
}

bool is_database(const fs::path& name) {
    return name == kLanguageDatabase;
}

// What nobody has a reason to keep an own copy of.
bool is_help(const fs::path& name) {
    return name.extension() == ".chm" || *name.begin() == kHelpPages;
}

bool stands(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

std::optional<QByteArray> bytes_of(const fs::path& path) {
    QFile file(qt_path(path));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QByteArray bytes = file.readAll();
    // What was read before a fault of the disk is no file.
    return file.error() == QFileDevice::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

QByteArray digest(const QByteArray& bytes) {
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

// By its texts, since the program writes into its file.
std::optional<QByteArray> mark_of_database(const fs::path& path) {
    std::optional<QByteArray> mark;
    trap(
        [&] { mark = digest(QByteArray::fromStdString(language_texts(runtime::path_text(path)))); },
        [&](const RuntimeError& failure) {
            if (failure.number == error::unrecognized_database)
                mark = kDamaged;
        });
    return mark;
}

/// What a file holds, in short; nothing where it can't be told now.
std::optional<QByteArray> mark_of(const fs::path& path) {
    if (is_database(path.filename()))
        return mark_of_database(path);
    const auto bytes = bytes_of(path);
    return bytes ? std::optional(digest(*bytes)) : std::nullopt;
}

/// Which marks the files had that came from the program: a line each, mark and name.
class Record {
  public:
    explicit Record(fs::path folder) : file_(std::move(folder) / kRecord) {
        for (const QByteArray& line : bytes_of(file_).value_or(QByteArray()).split('\n'))
            if (const auto blank = line.indexOf(' '); blank > 0)
                marks_[line.sliced(blank + 1)] = line.first(blank);
        as_read_ = marks_;
    }
    [[nodiscard]] QByteArray mark(const fs::path& name) const {
        const auto found = marks_.find(key(name));
        return found == marks_.end() ? QByteArray() : found->second;
    }
    void set(const fs::path& name, const QByteArray& mark) { marks_[key(name)] = mark; }
    void save() const {
        QSaveFile file(qt_path(file_));
        if (marks_ == as_read_ || !file.open(QIODevice::WriteOnly))
            return;
        for (const auto& [name, mark] : marks_)
            file.write(mark + ' ' + name + '\n');
        // What a full disk refuses shows here alone: the commit doesn't tell.
        if (file.flush())
            file.commit();
    }

  private:
    static QByteArray key(const fs::path& name) {
        return QByteArray::fromStdString(name.generic_string());
    }
    using Marks = std::map<QByteArray, QByteArray>;

    fs::path file_;
    Marks marks_;
    Marks as_read_;
};

/// "VELMORA-1.MDB", or the next number that is free.
fs::path free_name(const fs::path& path) {
    for (int number = 1;; ++number) {
        fs::path other = path;
        other.replace_filename(path.stem().string() + "-" + std::to_string(number) +
                               path.extension().string());
        if (!stands(other))
            return other;
    }
}

class Bringing {
  public:
    Bringing(const std::vector<fs::path>& sources, fs::path folder)
        : sources_(sources), folder_(std::move(folder)), record_(folder_) {}

    std::vector<fs::path> run() {
        for (const char* name : kFiles)
            bring(name);
        for (const char* folder : {kHelpPages, kMachines})
            for (const fs::path& name : files_below(folder))
                bring(name);
        record_.save();
        return kept_aside_;
    }

  private:
    [[nodiscard]] fs::path source_of(const fs::path& name) const {
        const auto has_it = [&](const fs::path& source) {
            return stands(source / name);
        };
        const auto found = std::ranges::find_if(sources_, has_it);
        return found == sources_.end() ? fs::path() : *found / name;
    }

    [[nodiscard]] std::set<fs::path> files_below(const char* folder) const {
        std::set<fs::path> files;
        std::error_code failure;
        for (const fs::path& source : sources_)
            for (fs::recursive_directory_iterator entry(source / folder, failure), end;
                 entry != end; entry.increment(failure))
                if (entry->is_regular_file(failure))
                    files.insert(entry->path().lexically_relative(source));
        return files;
    }

    void bring(const fs::path& name) {
        const fs::path source = source_of(name);
        const auto fresh = source.empty() ? std::nullopt : mark_of(source);
        if (!fresh)
            return;
        if (stands(folder_ / name) ? !gives_way(name, *fresh) : *fresh == kDamaged)
            return;
        if (put(source, name))
            record_.set(name, *fresh);
    }

    /// The file in the folder is to be replaced by the program's. One that is the same is put down
    /// in the record: it is not the user's own.
    bool gives_way(const fs::path& name, const QByteArray& fresh) {
        const auto present = mark_of(folder_ / name);
        if (!present || fresh == kDamaged)
            return false;
        if (*present == fresh) {
            record_.set(name, fresh);
            return false;
        }
        return is_help(name) || *present == kDamaged || !is_users_own(name, *present, fresh);
    }

    [[nodiscard]] bool is_users_own(const fs::path& name, const QByteArray& present,
                                    const QByteArray& fresh) const {
        const QByteArray came = record_.mark(name);
        if (came.isEmpty() || present == came)
            return false;
        return came == fresh || !is_database(name);
    }

    /// Nobody knows of a copy without a record whose it was.
    [[nodiscard]] bool is_to_be_kept(const fs::path& name) const {
        return (is_database(name) || name == kTemplate) && stands(folder_ / name) &&
               mark_of(folder_ / name) != record_.mark(name);
    }

    bool put(const fs::path& source, const fs::path& name) {
        const fs::path target = folder_ / name;
        make_writable(name);
        const auto bytes = bytes_of(source);
        QSaveFile file(qt_path(target));
        if (!bytes || !file.open(QIODevice::WriteOnly) || file.write(*bytes) != bytes->size() ||
            !file.flush())
            return false;
        const bool keep = is_to_be_kept(name);
        const fs::path aside = keep ? free_name(target) : fs::path();
        std::error_code failure;
        if (keep)
            fs::rename(target, aside, failure);
        if (failure)
            return false;
        if (!file.commit()) {
            if (keep)
                fs::rename(aside, target, failure);
            return false;
        }
        if (keep)
            kept_aside_.push_back(aside);
        return true;
    }

    /// The folders on the way to the file too: they may have come read-only.
    void make_writable(const fs::path& name) const {
        std::error_code ignored;
        fs::create_directories((folder_ / name).parent_path(), ignored);
        for (fs::path part = name; !part.empty(); part = part.parent_path())
            if (stands(folder_ / part))
                fs::permissions(folder_ / part, fs::perms::owner_write, fs::perm_options::add,
                                ignored);
    }

    const std::vector<fs::path>& sources_;
    fs::path folder_;
    Record record_;
    std::vector<fs::path> kept_aside_;
};

} // namespace

std::vector<fs::path> bring_data_files(const std::vector<fs::path>& sources,
                                       const fs::path& folder) {
    return Bringing(sources, folder).run();
}

} // namespace velmora
