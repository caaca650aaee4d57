#include "Unreal/OrvUnrealImageWrapper.h"

#include "IImageWrapper.h"
#include "IImageWrapperModule.h"
#include "Modules/ModuleManager.h"

namespace OrvWebBridge
{
    bool FOrvUnrealImageWrapper::SetRaw(const void* Data, std::int64_t SizeInBytes, std::int32_t Width,
                                        std::int32_t Height)
    {
        // FColor's memory order is B, G, R, A.
        return Wrapper->SetRaw(Data, SizeInBytes, Width, Height, ERGBFormat::BGRA, 8);
    }

    std::span<const std::uint8_t> FOrvUnrealImageWrapper::GetCompressed(std::int32_t Quality)
    {
        Compressed = Wrapper->GetCompressed(ToEngineJpegQuality(Quality));
        return std::span<const std::uint8_t>(Compressed.GetData(), static_cast<size_t>(Compressed.Num()));
    }

    int32 FOrvUnrealImageWrapper::ToEngineJpegQuality(int32 Quality)
    {
        // The engine's JPEG writer does not take quality literally: 0 means its default (85), 1 means
        // "uncompressed" (100), 2-39 are raised to 40, and values outside 1-100 trip an ensure. So a low
        // request would come out large. Clamping to 40-100 keeps "lower is smaller" down to the smallest
        // output the encoder offers and never passes it 0 or 1.
        return FMath::Clamp(Quality, 40, 100);
    }

    std::unique_ptr<IOrvImageWrapper> FOrvUnrealImageWrapperModule::CreateJpegWrapper()
    {
        IImageWrapperModule& Module =
            FModuleManager::LoadModuleChecked<IImageWrapperModule>(TEXT("ImageWrapper"));
        const TSharedPtr<IImageWrapper> Wrapper = Module.CreateImageWrapper(EImageFormat::JPEG);
        if (!Wrapper.IsValid())
        {
            return nullptr;
        }
        return std::make_unique<FOrvUnrealImageWrapper>(Wrapper.ToSharedRef());
    }
} // namespace OrvWebBridge
