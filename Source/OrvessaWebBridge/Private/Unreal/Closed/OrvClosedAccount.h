#pragma once

#if ORV_WITH_CLOSED_MODULES
class UOrvSubsystem;
#endif

namespace OrvWebBridge
{
#if ORV_WITH_CLOSED_MODULES
    /** The maker's account subsystem, or null (not made yet, or already gone). */
    UOrvSubsystem* OrvClosedFindSubsystem();

    /** The catalogue account's sign-in state (the maker's UOrvSubsystem); false without the subsystem. */
    bool OrvClosedIsUserLoggedIn();
#else
    /** Without the maker's core module nobody is signed in to the catalogue. */
    inline bool OrvClosedIsUserLoggedIn()
    {
        return false;
    }
#endif
} // namespace OrvWebBridge
