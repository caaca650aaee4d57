#pragma once

// Calls into the maker's closed core module (OrvCore). Compiled only when that module is present.
#if ORV_WITH_CLOSED_MODULES

namespace OrvWebBridge
{
    /** The catalogue account's sign-in state (UOrvSubsystem); false without the subsystem. */
    bool OrvClosedIsUserLoggedIn();
} // namespace OrvWebBridge

#endif
