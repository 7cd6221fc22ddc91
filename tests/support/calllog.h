#pragma once

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

/// The one list to which every double of the recording host writes its calls, as
/// "name.Operation(arguments)". Tests compare whole sequences.
class CCallLog
{
public:
    using CCalls = std::vector<std::string>;

    void Add(const std::string& who, const std::string& operation,
             std::initializer_list<std::string> arguments = {});

    const CCalls& GetCalls() const { return m_vCalls; }
    /// The calls so far, which are forgotten.
    CCalls Take();
    void Clear() { m_vCalls.clear(); }

    /// The calls whose text contains \p part, in order.
    CCalls Containing(const std::string& part) const;
    std::size_t Count(const std::string& part) const { return Containing(part).size(); }

private:
    CCalls m_vCalls;
};

/// A hook of a double: what the test wants to happen when the call arrives. Empty for nothing.
using CHook = std::function<void()>;

/// Runs a copy of \p hook, so that the double may die while it runs.
void RunHook(const CHook& hook);
