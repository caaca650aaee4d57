#pragma once

// Engine: Runtime/ImageWrapper/Public/IImageWrapperModule.h (module ImageWrapper).
// Docs:
//   https://dev.epicgames.com/documentation/en-us/unreal-engine/API/Runtime/ImageWrapper/IImageWrapperModule
//   https://dev.epicgames.com/documentation/unreal-engine/API/Runtime/ImageWrapper/IImageWrapperModule/CreateImageWrapper?application_version=5.0

#include "CoreMinimal.h"
#include "IImageWrapper.h"
#include "Modules/ModuleInterface.h"

class IImageWrapperModule : public IModuleInterface
{
public:
    virtual TSharedPtr<IImageWrapper> CreateImageWrapper(const EImageFormat InFormat,
                                                         const TCHAR* InOptionalDebugImageName = nullptr) = 0;
};
