#include "Host/Editor/OrvTurboJpegModule.h"

#include "Core/Tools/OrvViewportCapture.h"

#include <turbojpeg.h>

#include <algorithm>

namespace OrvWebBridge
{
    /** A TurboJPEG compressor and its output buffer, grown to the largest picture seen so far. */
    struct FOrvTurboJpegModule::FEncoder
    {
        tjhandle Handle = tjInitCompress();
        unsigned char* Buffer = nullptr;
        unsigned long Capacity = 0;

        FEncoder() = default;
        FEncoder(const FEncoder&) = delete;
        FEncoder& operator=(const FEncoder&) = delete;
        ~FEncoder()
        {
            tjFree(Buffer);
            if (Handle)
            {
                tjDestroy(Handle);
            }
        }

        bool Reserve(int Width, int Height)
        {
            const unsigned long Needed = tjBufSize(Width, Height, TJSAMP_420);
            if (Needed == static_cast<unsigned long>(-1))
            {
                return false;
            }
            if (Needed > Capacity)
            {
                tjFree(Buffer);
                Buffer = tjAlloc(static_cast<int>(std::min<unsigned long>(Needed, 0x7fffffff)));
                Capacity = Buffer ? Needed : 0;
            }
            return Buffer != nullptr;
        }
    };

    namespace
    {
        constexpr std::int32_t MaxJpegSide = 65535; ///< the JPEG header's 16-bit limit
        constexpr int MaxKeptSide = 4096;           ///< FOrvViewportCapture::MaxKeptPixels as a square
        static_assert(std::size_t{MaxKeptSide} * MaxKeptSide == FOrvViewportCapture::MaxKeptPixels);

        class FOrvTurboJpegWrapper : public IOrvImageWrapper
        {
        public:
            explicit FOrvTurboJpegWrapper(std::shared_ptr<FOrvTurboJpegModule::FEncoder> InEncoder)
                : Encoder(std::move(InEncoder))
            {
            }

            // The output buffer of a picture larger than the capture keeps its pixels for is not kept either.
            ~FOrvTurboJpegWrapper() override
            {
                if (Encoder->Capacity > tjBufSize(MaxKeptSide, MaxKeptSide, TJSAMP_420))
                {
                    tjFree(Encoder->Buffer);
                    Encoder->Buffer = nullptr;
                    Encoder->Capacity = 0;
                }
            }

            bool SetRaw(const void* Data, std::int64_t SizeInBytes, std::int32_t Width,
                        std::int32_t Height) override
            {
                Raw = nullptr;
                if (!Data || Width <= 0 || Height <= 0 || Width > MaxJpegSide || Height > MaxJpegSide ||
                    SizeInBytes != static_cast<std::int64_t>(Width) * Height * 4)
                {
                    return false;
                }
                Raw = static_cast<const unsigned char*>(Data);
                RawWidth = Width;
                RawHeight = Height;
                return true;
            }

            bool KeepsAlpha() const override { return false; }

            std::span<const std::uint8_t> GetCompressed(std::int32_t Quality) override
            {
                if (!Raw || !Encoder->Handle || !Encoder->Reserve(RawWidth, RawHeight))
                {
                    return {};
                }
                unsigned long Size = Encoder->Capacity;
                // TJFLAG_NOREALLOC: the buffer was sized with tjBufSize, so TurboJPEG never replaces it.
                const int Result = tjCompress2(
                    Encoder->Handle, Raw, RawWidth, 0, RawHeight, TJPF_BGRA, &Encoder->Buffer, &Size,
                    TJSAMP_420, FOrvTurboJpegModule::MapQuality(Quality), TJFLAG_NOREALLOC | TJFLAG_FASTDCT);
                if (Result != 0)
                {
                    return {};
                }
                return {Encoder->Buffer, Size};
            }

        private:
            std::shared_ptr<FOrvTurboJpegModule::FEncoder> Encoder;
            const unsigned char* Raw = nullptr;
            int RawWidth = 0;
            int RawHeight = 0;
        };
    } // namespace

    FOrvTurboJpegModule::FOrvTurboJpegModule() : Shared(std::make_shared<FEncoder>()) {}

    FOrvTurboJpegModule::~FOrvTurboJpegModule() = default;

    std::unique_ptr<IOrvImageWrapper> FOrvTurboJpegModule::CreateJpegWrapper()
    {
        // Only the module holds the shared encoder when no wrapper is alive: hand it out; otherwise a
        // second live wrapper must not overwrite the first one's output, so it gets an encoder of its own.
        std::shared_ptr<FEncoder> Encoder = Shared.use_count() == 1 ? Shared : std::make_shared<FEncoder>();
        if (!Encoder->Handle)
        {
            return nullptr;
        }
        return std::make_unique<FOrvTurboJpegWrapper>(std::move(Encoder));
    }

    int FOrvTurboJpegModule::MapQuality(std::int32_t Requested)
    {
        // The asked quality, as it is: 1 is the smallest picture, 100 the finest. (The engine's own JPEG
        // wrapper remaps 0, 1 and anything below 40; the plugin's adapter deals with that on its side.)
        return std::clamp<std::int32_t>(Requested, 1, 100);
    }
} // namespace OrvWebBridge
