#pragma once

#include <functional>

// The texts written again when an etiquette changes in the options: they belong to several subsystems,
// so the options screen reaches them here.
namespace modEtiquette {

// Called before each invitation with the number done and the whole; false stops the run.
using Progress = std::function<bool(int done, int total)>;

// Every invitation's inner envelope in the etiquette now chosen. False when the progress stopped it or
// an envelope could not be worded; the caller's transaction then puts everything back.
bool RelabelInvitations(const Progress& progress);
// The tent cards from the seating, in the etiquette now chosen.
bool RefreshTentcards();

} // namespace modEtiquette
