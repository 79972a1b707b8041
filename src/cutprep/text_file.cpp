#include "cutprep/text_file.h"

#include "formats/draft.h"
#include "runtime/file_stream.h"
#include "runtime/paths.h"

#include <utility>

namespace velmora {

void write_text_file(const std::string& path, std::string_view text) {
    Draft draft(path);
    runtime::FileHandle file = runtime::open_anew(runtime::native_path(draft.path()));
    runtime::WriteBuffer buffer;
    buffer.add(file.get(), text);
    buffer.flush(file.get());
    runtime::close_checked(std::move(file));
    draft.take_place();
}

} // namespace velmora
