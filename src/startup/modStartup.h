#pragma once

// What the start-up layer adds to the program: the layer that knows every subsystem registers their
// parts with the core below it. Every program (the desktop, the command line, the benchmarks, each
// test) calls RegisterSubsystems once before it opens a database; a second call changes nothing.
namespace modStartup {

// The counts of gApp, the seed rows of the subsystems' tables, and the subsystems' steps of a start:
// the patch driver's list, the global records, the couple attending their own wedding.
void RegisterSubsystems();

} // namespace modStartup
