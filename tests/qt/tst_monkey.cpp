#include "monkey/monkey.h"

#include <support/qtmessages.h>

#include <QtGlobal>

#include <gtest/gtest.h>

#include <cstdio>

// A host and a user at random over a live panel. INSPECTOR_MONKEY_SEED and INSPECTOR_MONKEY_STEPS
// set the run; the step at which a run fails depends on where the system puts objects, too, so that
// a failure is repeated with address randomisation switched off (setarch -R).

namespace
{

constexpr int g_iSteps = 30000;

int FromEnvironment(const char* name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

} // namespace

TEST(Monkey, LeavesTheBooksBalancedWhateverHostAndUserDo)
{
    const int seed = FromEnvironment("INSPECTOR_MONKEY_SEED", 1);
    const int steps = FromEnvironment("INSPECTOR_MONKEY_STEPS", g_iSteps);
    std::printf("seed %d\n", seed);
    qtmessages::Allow(QStringLiteral("does not support raise()"));
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Qt 5 has no picture for what is wider than one can be, and the style says so at each step.
    qtmessages::Allow(QStringLiteral("QPainter::"));
    qtmessages::Allow(QStringLiteral("QPixmap::"));
    qtmessages::Allow(QStringLiteral("QImage::"));
#endif
    CMonkey monkey(static_cast<unsigned>(seed));
    for (int step = 1; step <= steps && !HasFailure(); ++step)
    {
        monkey.Step();
        ASSERT_FALSE(HasFailure()) << "seed " << seed << ", step " << step;
    }
    std::printf("%s\n", monkey.Describe().c_str());
}
