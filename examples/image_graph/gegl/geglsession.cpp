#include "geglsession.h"

#include <gegl.h>

#include <algorithm>
#include <utility>

namespace
{

// Rendering goes on in a thread of its own; what it complains about is not about a file that is
// opened meanwhile.
thread_local std::vector<std::string> g_vMessages;
constexpr std::size_t g_ulMaxMessages = 100;

bool IsForDevelopers(const std::string& domain, const std::string& text)
{
    return domain.rfind("GLib", 0) == 0 || text.find("display handler") != std::string::npos ||
           text.find("pads_exist") != std::string::npos ||
           text.find("assertion '") != std::string::npos || text.find("Eeek") != std::string::npos;
}

void Keep(const std::string& domain, std::string text)
{
    text.erase(text.find_last_not_of(" \n") + 1);
    if (text.empty() || IsForDevelopers(domain, text))
        return;
    const bool isNew = std::find(g_vMessages.begin(), g_vMessages.end(), text) == g_vMessages.end();
    if (isNew && g_vMessages.size() < g_ulMaxMessages)
        g_vMessages.push_back(std::move(text));
}

// The library's warnings are for the user of the picture, who may have no console.
void KeepMessage(const gchar* domain, GLogLevelFlags level, const gchar* text, gpointer data)
{
    if (level & (G_LOG_LEVEL_ERROR | G_LOG_LEVEL_CRITICAL))
        g_log_default_handler(domain, level, text, data);
    if (!(level & (G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_MESSAGE)))
        return;
    Keep(domain ? domain : "", text ? text : "");
}

void KeepPrint(const gchar* text)
{
    Keep("", text);
}

} // namespace

CGeglSession::CGeglSession()
{
    g_set_printerr_handler(KeepPrint);
    g_log_set_default_handler(KeepMessage, nullptr);
    gegl_init(nullptr, nullptr);
    // The same picture on every machine: drivers differ, and where the library cuts a picture for
    // several threads, some operations leave a seam.
    g_object_set(gegl_config(), "use-opencl", FALSE, "threads", 1, nullptr);
}

CGeglSession::~CGeglSession()
{
    gegl_exit();
    g_log_set_default_handler(g_log_default_handler, nullptr);
    g_set_printerr_handler(nullptr);
}

std::vector<std::string> CGeglSession::TakeMessages()
{
    return std::exchange(g_vMessages, {});
}
