#include <gegl/geglsession.h>

#include <gtest/gtest.h>

#include <memory>

namespace
{

/// The image library lives as long as the tests run.
class CGeglEnvironment : public testing::Environment
{
public:
    void SetUp() override { m_pSession = std::make_unique<CGeglSession>(); }
    void TearDown() override { m_pSession.reset(); }

private:
    std::unique_ptr<CGeglSession> m_pSession;
};

[[maybe_unused]] const testing::Environment* const g_pEnvironment =
    testing::AddGlobalTestEnvironment(new CGeglEnvironment);

} // namespace
