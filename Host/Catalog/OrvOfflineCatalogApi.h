#pragma once

#include "Core/Ports/IOrvCatalogApi.h"
#include "Core/Ports/IOrvGameThread.h"

#include "Core/Json/OrvRapidJson.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace OrvWebBridge
{
    /** @brief Outcome of loading an offline catalogue; Error names the source, the place and the problem. */
    struct FOrvOfflineCatalogLoad
    {
        bool bOk = false;
        std::string
            Error; ///< e.g. "catalog.json: line 3, column 7: Missing a comma or '}' after an object member."
    };

    /**
     * @brief The catalogue service answered from a file of product records (Docs/CatalogFormat.md).
     * "/orvvault/products/batch" answers as the service does: the records found under "products" (keyed
     * by id), the unknown ids under "missing", "status": true. Every answer arrives later, on the game
     * thread; any other path completes as a failed request.
     */
    class FOrvOfflineCatalogApi : public IOrvCatalogApi
    {
    public:
        static constexpr std::string_view BatchPath = "/orvvault/products/batch";

        explicit FOrvOfflineCatalogApi(IOrvGameThread& InGameThread);

        /** Replaces the records with those of a catalogue file; on failure the records are left empty. */
        FOrvOfflineCatalogLoad LoadFile(const std::string& FilePath);

        /** The same from text; SourceName stands for the file in error messages. */
        FOrvOfflineCatalogLoad LoadText(std::string_view Text, const std::string& SourceName);

        std::size_t GetProductCount() const { return IndexById.size(); }

        void Post(std::string_view Path, std::string JsonBody, FOrvApiCallback OnComplete) override;
        std::vector<FOrvCookie> GetCookies() const override { return Cookies; }
        void SetCookie(const FOrvCookie& Cookie) override;

    private:
        std::shared_ptr<const rapidjson::Document> AnswerBatch(std::string_view JsonBody) const;

        IOrvGameThread& GameThread;
        rapidjson::Document Records; ///< array of the file's product records, as written
        std::unordered_map<std::string, std::size_t> IndexById;
        std::vector<FOrvCookie> Cookies;
    };
} // namespace OrvWebBridge
