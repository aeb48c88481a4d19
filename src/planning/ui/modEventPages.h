#pragma once

// Plugs the events and timelines into the frame: the two pages, their editors' pictures for the
// screenshots.
void RegisterEventPages();
