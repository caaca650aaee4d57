#pragma once

#include "CoreMinimal.h"
#include "Framework/Commands/Commands.h"

/** @brief The plugin's commands: open the catalogue panel, and show the selected product's details (Alt+R).
 */
class FOrvessaWebBridgeCommands : public TCommands<FOrvessaWebBridgeCommands>
{
public:
    FOrvessaWebBridgeCommands();

    virtual void RegisterCommands() override;

    TSharedPtr<FUICommandInfo> OpenPluginWindow;
    TSharedPtr<FUICommandInfo> ViewProductDetails;
};
