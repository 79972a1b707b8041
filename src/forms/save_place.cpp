#include "forms/save_place.h"

#include "document/feedback.h"
#include "document/state/program.h"
#include "platform/platform.h"
#include "runtime/paths.h"
#include "services/message_codes.h"
#include "services/messages.h"

namespace velmora {

namespace {

std::string with_extension(const std::string& path, const std::string& extension) {
    const std::string name = runtime::file_name(path);
    if (name.empty() || name.find('.') != std::string::npos)
        return path;
    return path + extension;
}

int ask_to_overwrite(const std::string& path) {
    return MsgBox(GetMensaje(message::the_file) + " " + path + " " + GetMensaje(message::overwrite),
                  buttons::yes_no_cancel + buttons::question, box_title());
}

} // namespace

std::string beside(const std::string& file, const std::string& extension) {
    if (file.empty())
        return {};
    auto path = runtime::native_path(file);
    return runtime::path_text(path.replace_extension(extension));
}

std::string ask_where_to_save(const FileRequest& request) {
    for (;;) {
        const std::string path =
            with_extension(platform().dialogs.save_file(request), request.extension);
        if (path.empty() || !runtime::file_exists(path))
            return path;
        const int reply = ask_to_overwrite(path);
        if (reply == answer::cancel)
            return {};
        if (reply != answer::no)
            return path;
    }
}

} // namespace velmora
