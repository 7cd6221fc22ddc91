#include <simpledataprovider.h>

#include <simpledataelement.h>

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

TEST(SimpleDataProvider, IsDestroyedThroughTheInterface)
{
    struct sProvider : ISimpleDataProvider
    {
        explicit sProvider(bool& destroyed) : m_bDestroyed(destroyed) {}
        ~sProvider() override { m_bDestroyed = true; }
        void GetDataAsString(std::string& out) override { out = "text"; }
        bool& m_bDestroyed;
    };
    bool destroyed = false;
    std::unique_ptr<ISimpleDataProvider> provider = std::make_unique<sProvider>(destroyed);
    std::string text = "something longer";
    provider->GetDataAsString(text);
    EXPECT_EQ(text, "text");
    provider.reset();
    EXPECT_TRUE(destroyed);
}

TEST(SimpleDataProvider, IsTheSecondBaseOfTheSimpleElement)
{
    CSimpleDataElement element;
    element.SetStrCurrentValue("value");
    ISimpleDataProvider* provider = &element;
    EXPECT_GT(reinterpret_cast<char*>(provider),
              reinterpret_cast<char*>(static_cast<CInspectorDataElement*>(&element)));
    EXPECT_EQ(static_cast<void*>(static_cast<CInspectorDataElement*>(&element)), &element);
    std::string text;
    provider->GetDataAsString(text);
    EXPECT_EQ(text, "value");
}

TEST(SimpleDataProvider, IsFoundFromTheOtherSideByARunTimeCast)
{
    std::unique_ptr<CInspectorDataElement> element = std::make_unique<CSimpleDataElement>();
    EXPECT_NE(dynamic_cast<ISimpleDataProvider*>(element.get()), nullptr);
}
