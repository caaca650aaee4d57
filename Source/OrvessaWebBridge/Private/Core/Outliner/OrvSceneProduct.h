#pragma once

#include "Core/Common/OrvTypes.h"
#include "Core/Outliner/OrvOutlinerNameKey.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace OrvWebBridge
{
    /**
     * @brief The eleven text fields the catalogue knows of a product. The scanner's cache keeps exactly
     * these per product id; the defaults are what a product shows until the catalogue completes it.
     */
    struct FOrvProductInfo
    {
        std::string ProductID;
        std::string Name = "Unknown Product";
        std::string Brand = "Unknown Brand";
        std::string Category = "Uncategorized";
        std::string CategoryT2; ///< macro category
        std::string Collection;
        std::string Designer;
        std::string Dimensions;
        std::string Weight;
        std::string Description;
        std::string Website;

        /** The record of a product the catalogue could not tell anything about. */
        static FOrvProductInfo MakePlaceholder(std::string_view ProductID)
        {
            FOrvProductInfo Info;
            Info.ProductID = std::string(ProductID);
            return Info;
        }

        friend bool operator==(const FOrvProductInfo&, const FOrvProductInfo&) = default;
    };

    /** @brief A catalogue product placed in the level: its info, its actors and the mesh that carried the
     * tag. */
    struct FOrvSceneProduct : FOrvProductInfo
    {
        std::vector<FOrvActorRef> Actors; ///< weak: some may be gone by the time they are read
        FOrvMeshRef Mesh;                 ///< weak

        const FOrvProductInfo& GetInfo() const { return *this; }
        void SetInfo(const FOrvProductInfo& Info) { static_cast<FOrvProductInfo&>(*this) = Info; }
    };

    using FOrvSceneProductPtr = std::shared_ptr<FOrvSceneProduct>;

    /**
     * @brief Product id to product, as the scanner's TMap: ids compared without case, iteration in the
     * order products were first met in the level.
     */
    class FOrvSceneProductMap
    {
    public:
        using FConstIterator = std::vector<FOrvSceneProductPtr>::const_iterator;

        /** The product under Id; null when there is none. */
        FOrvSceneProductPtr Find(std::string_view Id) const
        {
            const auto Found = IndexById.find(Id);
            return Found == IndexById.end() ? nullptr : Products[Found->second];
        }

        /** Where the product under Id stands in the order; Num() when there is none. */
        std::size_t FindIndex(std::string_view Id) const
        {
            const auto Found = IndexById.find(Id);
            return Found == IndexById.end() ? Products.size() : Found->second;
        }

        /** The product at a place of the order (below Num()). */
        const FOrvSceneProductPtr& operator[](std::size_t Index) const { return Products[Index]; }

        /** Adds Product under its ProductID; replaces a product already held under that id. */
        void Add(FOrvSceneProductPtr Product)
        {
            const auto [Found, bInserted] = IndexById.try_emplace(Product->ProductID, Products.size());
            if (bInserted)
            {
                Products.push_back(std::move(Product));
            }
            else
            {
                Products[Found->second] = std::move(Product);
            }
        }

        std::size_t Num() const { return Products.size(); }
        bool IsEmpty() const { return Products.empty(); }
        FConstIterator begin() const { return Products.begin(); }
        FConstIterator end() const { return Products.end(); }

    private:
        std::vector<FOrvSceneProductPtr> Products;
        TOrvOutlinerNameMap<std::size_t> IndexById;
    };
} // namespace OrvWebBridge
