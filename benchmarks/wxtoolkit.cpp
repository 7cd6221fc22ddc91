#include "toolkit.h"
#include "wxpanel.h"

#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/init.h>

#include <cstdio>
#include <cstdlib>

namespace
{

/// Nobody is there to answer the dialog that is shown otherwise.
void EndAtFailedAssertion(const wxString& file, int line, const wxString&,
                          const wxString& condition, const wxString&)
{
    std::fprintf(stderr, "%s:%d: %s\n", file.utf8_str().data(), line, condition.utf8_str().data());
    std::abort();
}

} // namespace

int RunWithToolkit(int argc, char** argv, int (*run)(int argc, char** argv))
{
    setenv("GDK_BACKEND", "x11", 0);
    // Drawn by the program, as by the other toolkit, and not by the display's process.
    setenv("GDK_RENDERING", "image", 0);
    // No animations, see the settings.
    setenv("GTK_OVERLAY_SCROLLING", "0", 0);
    setenv("XDG_CONFIG_HOME", GTK_SETTINGS, 1);
    setenv("NO_AT_BRIDGE", "1", 0);
    // The toolkit complains each time that the grid places an editor before it shows it.
    wxApp::GTKAllowDiagnosticsControl();
    wxApp::GTKSuppressDiagnostics();
    wxSetAssertHandler(EndAtFailedAssertion);
    wxApp::SetInstance(new wxApp);
    const wxInitializer initializer;
    if (!initializer)
        return 1;
    wxGUIEventLoop loop;
    const wxEventLoopActivator activator(&loop);
    return run(argc, argv);
}

const std::vector<sTwin>& AllTwins()
{
    static const std::vector<sTwin> twins{{"wx", MakeWxPanel}};
    return twins;
}
