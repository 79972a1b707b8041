#include "remote_cad_session.h"

#include "fakes/put_in_place.h"

namespace velmora::test {

RemoteCadSession::RemoteCadSession() {
    put_in_place(*cad);
    session.winoptions.TxtPutArc = "3";
    session.winoptions.TxtPutCircle = "4";
}

void RemoteCadSession::start_cad(std::initializer_list<const char*> lines) {
    remote.reset(); // one at a time owns the name
    remote = std::make_unique<RemoteCad>();
    remote->say("running AutoCAD 15.0");
    for (const char* line : lines)
        remote->say(line);
}

void RemoteCadSession::open_drawing(std::initializer_list<const char*> entities) {
    start_cad({"document Ala.dwg"});
    for (const char* entity : entities)
        remote->say(entity);
    ReconectaAcad();
}

std::vector<std::string> RemoteCadSession::shown_texts() const {
    std::vector<std::string> texts;
    for (const ShownBox& box : machine.dialogs.boxes)
        texts.push_back(box.text);
    return texts;
}

} // namespace velmora::test
