#include "Unreal/Closed/OrvClosedAccount.h"

#if ORV_WITH_CLOSED_MODULES

#include "Engine/Engine.h"
// ASSUMED (1): the core module's header for its account subsystem is called so.
#include "OrvSubsystem.h"

namespace OrvWebBridge
{
    UOrvSubsystem* OrvClosedFindSubsystem()
    {
        // ASSUMED (2): an engine subsystem.
        return GEngine ? GEngine->GetEngineSubsystem<UOrvSubsystem>() : nullptr;
    }

    bool OrvClosedIsUserLoggedIn()
    {
        // ASSUMED (3): GetLoginState() is const and answers a bool.
        const UOrvSubsystem* Subsystem = OrvClosedFindSubsystem();
        return Subsystem && Subsystem->GetLoginState();
    }
} // namespace OrvWebBridge

#endif
