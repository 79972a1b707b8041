// What a script asks of the document, the files, the settings and the CAD; each answer is lines of
// the transcript. `words` is what stands behind the question's name; a ScriptFault for words that
// it can't answer.
#pragma once

#include "script/places.h"
#include "script/transcript.h"
#include "scripted/cad.h"
#include "scripted/machine.h"

#include <span>
#include <string>

namespace velmora::driver {

void show_points(Transcript& transcript, std::span<const std::string> words);
void show_objects(Transcript& transcript);
void show_values(Transcript& transcript, const Places& places, std::span<const std::string> words);
void show_file(Transcript& transcript, const Places& places, const std::string& path);
void show_files(Transcript& transcript, const Places& places, const std::string& folder);
void show_settings(Transcript& transcript, const Places& places, const ScriptedSettings& settings);
void show_cad(Transcript& transcript, const Places& places, const CadState& cad);

} // namespace velmora::driver
