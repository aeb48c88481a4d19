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
// The etiquette of the tent cards kept with the data, and every tent card written anew in it, as one
// piece of work: a failure leaves both as they were, in the table and in memory. Throws on a failure.
void ChangeTentCardEtiquette(bool formal);

} // namespace modEtiquette
