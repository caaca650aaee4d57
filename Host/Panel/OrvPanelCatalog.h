#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /** @brief A product as the panel's library and pages show it. */
    struct FOrvPanelProduct
    {
        std::string Id;
        std::string Name;
        std::string Brand;
    };

    /**
     * @brief The catalogue the host's panel plays the site and the account with: products for the library
     * and the product pages, finishes for the finish pages, and the whole as JSON for the demo site.
     */
    class FOrvPanelCatalog
    {
    public:
        /** Reads a catalogue file's text (Docs/CatalogFormat.md); false with the reason in Error. */
        bool Load(std::string_view Text, std::string& Error);

        const std::vector<FOrvPanelProduct>& GetProducts() const { return Products; }
        const FOrvPanelProduct* FindProduct(std::string_view Id) const;
        bool HasFinish(std::string_view Id) const;

        /** {"products":[...],"finishes":[...]}: the records as written in the file. */
        const std::string& GetJson() const { return Json; }

    private:
        std::vector<FOrvPanelProduct> Products;
        std::vector<std::string> FinishIds;
        std::string Json;
    };
} // namespace OrvWebBridge
