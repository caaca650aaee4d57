#pragma once

// ASSUMED. Not the maker's header and not copied from one: a stand-in for the account subsystem of the
// maker's closed core module OrvCore, declaring only what the product description states (its login state).
//
// Unchecked facts (each marked "ASSUMED (n)" in Source/OrvessaWebBridge/Private/Unreal/Closed/
// OrvClosedAccount.cpp where it is relied on):
//   (1) the header's name, "OrvSubsystem.h";
//   (2) that UOrvSubsystem is an engine subsystem found through GEngine (the description also calls it an
//       editor subsystem in one place; the outliner's sign-in gate, the user here, uses GEngine);
//   (3) that GetLoginState() answers a bool and is const.

#include "Subsystems/EngineSubsystem.h"

class UOrvSubsystem : public UEngineSubsystem
{
    ORV_SURFACE_UCLASS_BODY(UOrvSubsystem, UEngineSubsystem)

    bool GetLoginState() const;
};
