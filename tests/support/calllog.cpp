#include "calllog.h"

#include <utility>

void CCallLog::Add(const std::string& who, const std::string& operation,
                   std::initializer_list<std::string> arguments)
{
    std::string call = who + "." + operation + "(";
    const char* separator = "";
    for (const std::string& argument : arguments)
    {
        call += separator + argument;
        separator = ", ";
    }
    m_vCalls.push_back(call + ")");
}

CCallLog::CCalls CCallLog::Take()
{
    return std::exchange(m_vCalls, {});
}

CCallLog::CCalls CCallLog::Containing(const std::string& part) const
{
    CCalls found;
    for (const std::string& call : m_vCalls)
    {
        if (call.find(part) != std::string::npos)
            found.push_back(call);
    }
    return found;
}

void RunHook(const CHook& hook)
{
    if (const CHook copy = hook)
        copy();
}
