#pragma once

// What the process does every second once the display is open, in this order: it exits if the client is gone; handles
// the client's messages and then the user's decisions; on the first tick creates the hidden shell; brings back the action
// request dialog when no snooze runs; closes messages whose time is over; outside quiet mode takes the forced actions
// whose deadline has passed; and brings the action request dialog up to date. Main thread only.
void ServiceTimerTick();
