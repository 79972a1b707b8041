// How far the capture of one entity has come, in pbar2.
#pragma once

namespace velmora {

void start_entity_progress(double points);
/// One point more; the windows run.
void step_entity_progress();

} // namespace velmora
