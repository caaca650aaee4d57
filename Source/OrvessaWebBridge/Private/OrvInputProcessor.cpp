#include "OrvInputProcessor.h"

#include "OrvessaWebBridge.h"

#include "Input/Events.h"

#include "Core/SmartPanel/OrvInputKeyPredicate.h"
#include "Unreal/OrvUnrealConversions.h"

bool FOrvInputProcessor::HandleKeyDownEvent(FSlateApplication&, const FKeyEvent& InKeyEvent)
{
    using namespace OrvWebBridge;
    return FOrvInputKeyPredicate::HandleKeyDown(FOrvUnrealConversions::ToOrvKeyEvent(InKeyEvent), Log,
                                                Module ? Module->GetSmartPanel() : nullptr);
}
