#include "adapters/qt/settling.h"

#include "runtime/error.h"

#include <QFile>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace velmora {

#ifdef Q_OS_WIN

void settle_on_disk(const QString& path) {
    QFile file(path); // a folder can't be opened, and needs no wait
    if (file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) && _commit(file.handle()) != 0)
        raise(error::device_io);
}

#else

namespace {

template <class Call>
int until_done(Call&& call) {
    int result = call();
    while (result < 0 && errno == EINTR)
        result = call();
    return result;
}

/// Some file systems answer that they know no such wait.
void raise_if_disk_failed() {
    if (errno == ENOSPC || errno == EDQUOT)
        raise(error::disk_full);
    if (errno == EIO)
        raise(error::device_io);
}

class Descriptor {
  public:
    explicit Descriptor(const QByteArray& path)
        : number_(until_done([&] { return open(path.constData(), O_RDONLY | O_CLOEXEC); })) {}
    ~Descriptor() {
        if (number_ >= 0)
            close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    [[nodiscard]] int number() const { return number_; }

  private:
    int number_;
};

} // namespace

void settle_on_disk(const QString& path) {
    const Descriptor file(QFile::encodeName(path));
    if (file.number() < 0 || until_done([&] { return fsync(file.number()); }) != 0)
        raise_if_disk_failed();
}

#endif

} // namespace velmora
