#include "OrvessaWebBridgeCommands.h"

#include "OrvessaWebBridgeStyle.h"

#include "Core/Module/OrvCommandTable.h"

// Labels and tooltips are restated from the core's command table as literals, which localisation gathering
// needs; a test keeps them equal.
#define LOCTEXT_NAMESPACE "FOrvessaWebBridgeModule"

FOrvessaWebBridgeCommands::FOrvessaWebBridgeCommands()
    : TCommands<FOrvessaWebBridgeCommands>(
          FName(OrvWebBridge::FOrvCommandTable::ContextName),
          NSLOCTEXT("Contexts", "OrvessaWebBridge", "OrvessaWebBridge Plugin"), NAME_None,
          FOrvessaWebBridgeStyle::GetStyleSetName())
{
}

void FOrvessaWebBridgeCommands::RegisterCommands()
{
    UI_COMMAND(OpenPluginWindow, "Orv Catalog", "Browse and download ORVESSA assets",
               EUserInterfaceActionType::Button, FInputChord());
    UI_COMMAND(ViewProductDetails, "View Orv Product/Finish Details",
               "Open product or finish details for selected Orv asset", EUserInterfaceActionType::Button,
               FInputChord(EModifierKey::Alt, EKeys::R));
}

#undef LOCTEXT_NAMESPACE
