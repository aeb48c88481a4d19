#pragma once

#include <QtGlobal>
#include <functional>

// The texts written again when an etiquette changes in the options: they belong to several subsystems,
// so the options screen reaches them here.
namespace modEtiquette {

// Called before each invitation with the number done and the whole; false stops the run.
using Progress = std::function<bool(qsizetype done, qsizetype total)>;

// The etiquette of the invitations kept with the data, and every inner envelope written anew in it, as
// one piece of work: false (and nothing changed) when the progress stopped it. Throws on a failure.
bool ChangeInvitationEtiquette(bool formal, const Progress& progress);
// The tent cards from the seating, in the etiquette now chosen.
void RefreshTentcards();

} // namespace modEtiquette
