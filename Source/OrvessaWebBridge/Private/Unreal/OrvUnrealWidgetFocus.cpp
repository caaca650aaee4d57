#include "Unreal/OrvUnrealWidgetFocus.h"

#include "Unreal/OrvUnrealConversions.h"

#include "Framework/Application/SlateApplication.h"
#include "Widgets/SWidget.h"

namespace OrvWebBridge
{
    std::vector<std::string> FOrvUnrealWidgetFocus::GetFocusedWidgetTypes() const
    {
        std::vector<std::string> Types;
        if (!FSlateApplication::IsInitialized())
        {
            return Types;
        }
        for (TSharedPtr<SWidget> Widget = FSlateApplication::Get().GetKeyboardFocusedWidget();
             Widget.IsValid(); Widget = Widget->GetParentWidget())
        {
            Types.push_back(FOrvUnrealConversions::ToUtf8(Widget->GetTypeAsString()));
        }
        return Types;
    }
} // namespace OrvWebBridge
