#pragma once

// What the process does every second once the display is open, in this order: it exits if the client is gone; handles
// the client's messages and then the user's decisions; with the first tick creates the hidden shell and opens the
// messages that waited for the display; brings back the action request dialog when no snooze runs; closes messages whose
// time is over; outside quiet mode takes the forced actions whose deadline has passed; closes the action request dialog
// to decisions while a question stands, whatever has opened it; and brings it up to date. Main thread only.
void ServiceTimerTick();
