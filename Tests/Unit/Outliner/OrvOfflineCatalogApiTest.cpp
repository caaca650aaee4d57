#include "Host/Catalog/OrvOfflineCatalogApi.h"
#include "Tests/Support/OrvApiOutcome.h"
#include "Tests/Support/OrvManualGameThread.h"

#include <gtest/gtest.h>

using namespace OrvWebBridge;

namespace
{
    constexpr const char* CatalogText = R"({"products":[
        {"id":"P-LC2","name":"LC2","brand":"Cassina","category":"Armchairs","category_t2":"Seating",
         "designer":"Le Corbusier","weight":32},
        {"id":"P-ARCO","name":"Arco","brand":"Flos","category":"Floor Lamps","collection":null}
    ]})";
} // namespace

TEST(FOrvOfflineCatalogApiTest, BatchAnswersFoundAndMissingIdsLaterOnTheGameThreadAndNothingElse)
{
    FOrvManualGameThread GameThread;
    FOrvOfflineCatalogApi Api(GameThread);
    ASSERT_TRUE(Api.LoadText(CatalogText, "catalog.json").bOk);
    FOrvApiOutcome Batch;
    FOrvApiOutcome Unknown;
    FOrvApiOutcome BadBody;

    Api.Post("/orvvault/products/batch", R"({"product_ids":["P-ARCO","P-NOPE","P-ARCO",7]})",
             Batch.Callback());
    Api.Post("/orvvault/library", "{}", Unknown.Callback());
    Api.Post("/orvvault/products/batch", "{\"product_ids\":\"P-LC2\"}", BadBody.Callback());
    EXPECT_EQ(Batch.Calls, 0);
    GameThread.RunPending();

    ASSERT_EQ(Batch.Calls, 1);
    ASSERT_TRUE(Batch.bSuccess && Batch.Answer);
    const rapidjson::Document& Document = *Batch.Answer;
    EXPECT_TRUE(Document["status"].GetBool());
    ASSERT_EQ(Document["products"].MemberCount(), 1u);
    EXPECT_STREQ(Document["products"]["P-ARCO"]["brand"].GetString(), "Flos");
    ASSERT_EQ(Document["missing"].Size(), 1u);
    EXPECT_STREQ(Document["missing"][0].GetString(), "P-NOPE");

    EXPECT_EQ(Unknown.Calls, 1);
    EXPECT_FALSE(Unknown.bSuccess);
    EXPECT_EQ(Unknown.Answer, nullptr);
    ASSERT_TRUE(BadBody.bSuccess && BadBody.Answer);
    EXPECT_FALSE((*BadBody.Answer)["status"].GetBool());
}

TEST(FOrvOfflineCatalogApiTest, MalformedCataloguesAreRefusedWithWhereAndWhy)
{
    FOrvManualGameThread GameThread;
    FOrvOfflineCatalogApi Api(GameThread);
    const auto ErrorOf = [&](const std::string& Text) { return Api.LoadText(Text, "cat.json").Error; };

    EXPECT_EQ(ErrorOf("{\"products\":[\n  {\"id\":\"A\" \"name\":\"x\"}]}"),
              "cat.json: line 2, column 13: Missing a comma or '}' after an object member.");
    EXPECT_EQ(ErrorOf("{\"items\":[]}"),
              "cat.json: expected an object with a \"products\" array, or an array of product records");
    EXPECT_EQ(ErrorOf("[{\"id\":\"A\"},{\"name\":\"B\"}]"), "cat.json: [1].id: expected a non-empty string");
    EXPECT_EQ(ErrorOf("{\"products\":[{\"id\":\"A\",\"brand\":[\"x\"]}]}"),
              "cat.json: products[0].brand: expected a string");
    EXPECT_EQ(ErrorOf("{\"products\":[{\"id\":\"A\"},7]}"),
              "cat.json: products[1]: expected a product record (an object)");
    EXPECT_EQ(ErrorOf("{\"products\":[{\"id\":\"A\"},{\"id\":\"B\"},{\"id\":\"A\"}]}"),
              "cat.json: products[2].id: \"A\" repeats products[0]");
    EXPECT_EQ(Api.GetProductCount(), 0u) << "a refused file leaves no records behind";
    EXPECT_EQ(Api.LoadFile("/nonexistent/cat.json").Error,
              "/nonexistent/cat.json: cannot open: No such file or directory");

    EXPECT_TRUE(Api.LoadText("[{\"id\":\"A\"},{\"id\":\"B\"}]", "bare.json").bOk);
    EXPECT_EQ(Api.GetProductCount(), 2u);
}
