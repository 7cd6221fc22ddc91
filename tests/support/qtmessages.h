#pragma once

#include <QString>

/// Qt's warnings during the tests: each one fails the test that is running, unless the test names
/// it before it comes.
namespace qtmessages
{

/// Takes over Qt's messages for the rest of the process.
void Install();

/// A warning that contains \p part must come before the running test is over, and is then welcome.
void Expect(const QString& part);

/// A warning that contains \p part may come while the running test lasts.
void Allow(const QString& part);

/// The test is over: fails it for every expected warning that did not come, and forgets its list.
void EndTest();

} // namespace qtmessages
