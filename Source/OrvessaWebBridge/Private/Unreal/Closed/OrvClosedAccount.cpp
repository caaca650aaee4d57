#include "Unreal/Closed/OrvClosedAccount.h"

#if ORV_WITH_CLOSED_MODULES

#include "Engine/Engine.h"
// The core module's account subsystem. Assumed: an engine subsystem answering GetLoginState().
#include "OrvSubsystem.h"

namespace OrvWebBridge
{
    bool OrvClosedIsUserLoggedIn()
    {
        const UOrvSubsystem* Subsystem = GEngine ? GEngine->GetEngineSubsystem<UOrvSubsystem>() : nullptr;
        return Subsystem && Subsystem->GetLoginState();
    }
} // namespace OrvWebBridge

#endif
