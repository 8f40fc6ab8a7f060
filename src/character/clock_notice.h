// The clock alarm's notice, FlyingBat5.
#pragma once

// True when the performance that the open notice plays is to take its next step
// (message 2258 to the notice). Called once a tick; SharedTime is the time.
bool ClockNoticeWaitIsOver();
