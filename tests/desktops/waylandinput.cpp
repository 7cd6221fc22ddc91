// A pointer and a keyboard for a compositor without any, moved by lines on the standard input:
//   move X Y | button CODE 0/1 | key CODE 0/1 | wheel NOTCHES | pan PIXELS
// Codes are those of the kernel. Every line is answered with "ok" once the compositor has it. The
// devices stay while the program runs: with the last keyboard, the active window would lose the
// focus.

#include "waylandprotocols.h"

#include <sys/mman.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <cstring>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>

namespace
{

constexpr uint32_t g_uiWidth = 1024;
constexpr uint32_t g_uiHeight = 768;
constexpr int g_iAxisPerNotch = 15;

struct sGlobals
{
    void* m_pSeat = nullptr;
    wl_proxy* m_pPointers = nullptr;
    wl_proxy* m_pKeyboards = nullptr;
    wl_proxy* m_pFakeInput = nullptr;
};

void OnGlobal(void* data, wl_registry* registry, uint32_t name, const char* interface, uint32_t)
{
    auto& globals = *static_cast<sGlobals*>(data);
    const auto bind = [&](const wl_interface& wanted, int version) -> void*
    {
        return std::strcmp(interface, wanted.name) == 0
                   ? wl_registry_bind(registry, name, &wanted, static_cast<uint32_t>(version))
                   : nullptr;
    };
    if (void* seat = bind(wl_seat_interface, 1))
        globals.m_pSeat = seat;
    else if (void* pointers = bind(g_virtualPointerManager, 1))
        globals.m_pPointers = static_cast<wl_proxy*>(pointers);
    else if (void* keyboards = bind(g_virtualKeyboardManager, 1))
        globals.m_pKeyboards = static_cast<wl_proxy*>(keyboards);
    else if (void* fake = bind(g_fakeInput, 4))
        globals.m_pFakeInput = static_cast<wl_proxy*>(fake);
}

void OnGlobalRemoved(void*, wl_registry*, uint32_t)
{
}

/// What a line asks for, sent by one of the protocols.
class CDevices
{
public:
    virtual ~CDevices() = default;
    virtual void Move(uint32_t x, uint32_t y) = 0;
    virtual void Button(uint32_t code, uint32_t state) = 0;
    virtual void Key(uint32_t code, uint32_t state) = 0;
    virtual void Wheel(int notches) = 0;
    virtual void Pan(int pixels) = 0;
};

/// The protocols of compositors made with wlroots.
class CVirtualDevices : public CDevices
{
public:
    explicit CVirtualDevices(const sGlobals& globals)
        : m_pPointer(wl_proxy_marshal_constructor(globals.m_pPointers, 0, &g_virtualPointer,
                                                  globals.m_pSeat, nullptr)),
          m_pKeyboard(wl_proxy_marshal_constructor(globals.m_pKeyboards, 0, &g_virtualKeyboard,
                                                   globals.m_pSeat, nullptr))
    {
        xkb_context* context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
        const xkb_rule_names us{"evdev", "pc105", "us", "", ""};
        xkb_keymap* keymap = xkb_keymap_new_from_names(context, &us, XKB_KEYMAP_COMPILE_NO_FLAGS);
        m_pState = xkb_state_new(keymap);
        char* text = xkb_keymap_get_as_string(keymap, XKB_KEYMAP_FORMAT_TEXT_V1);
        const std::size_t size = std::strlen(text) + 1;
        const int file = memfd_create("keymap", 0);
        if (write(file, text, size) != static_cast<ssize_t>(size))
            std::cerr << "waylandinput: the key map could not be written\n";
        wl_proxy_marshal(m_pKeyboard, eKeyboardKeymap, 1u, file, static_cast<uint32_t>(size));
        free(text);
        xkb_keymap_unref(keymap);
        xkb_context_unref(context);
    }
    ~CVirtualDevices() override { xkb_state_unref(m_pState); }

    void Move(uint32_t x, uint32_t y) override
    {
        wl_proxy_marshal(m_pPointer, ePointerMotionAbsolute, Now(), x, y, g_uiWidth, g_uiHeight);
        Frame();
    }

    void Button(uint32_t code, uint32_t state) override
    {
        wl_proxy_marshal(m_pPointer, ePointerButton, Now(), code, state);
        Frame();
    }

    void Key(uint32_t code, uint32_t state) override
    {
        wl_proxy_marshal(m_pKeyboard, eKeyboardKey, Now(), code, state);
        xkb_state_update_key(m_pState, code + 8, state ? XKB_KEY_DOWN : XKB_KEY_UP);
        wl_proxy_marshal(m_pKeyboard, eKeyboardModifiers,
                         xkb_state_serialize_mods(m_pState, XKB_STATE_MODS_DEPRESSED), 0u, 0u, 0u);
    }

    void Wheel(int notches) override
    {
        wl_proxy_marshal(m_pPointer, ePointerAxisSource, 0u);
        wl_proxy_marshal(m_pPointer, ePointerAxisDiscrete, Now(), 0u,
                         wl_fixed_from_int(notches * g_iAxisPerNotch), notches);
        Frame();
    }

    void Pan(int pixels) override
    {
        wl_proxy_marshal(m_pPointer, ePointerAxisSource, 1u);
        wl_proxy_marshal(m_pPointer, ePointerAxis, Now(), 0u, wl_fixed_from_int(pixels));
        Frame();
        wl_proxy_marshal(m_pPointer, ePointerAxisSource, 1u);
        wl_proxy_marshal(m_pPointer, ePointerAxisStop, Now(), 0u);
        Frame();
    }

private:
    /// A clock that goes on by more than a double click takes, so that no two clicks are one.
    uint32_t Now() { return m_uiNow += 600; }
    void Frame() { wl_proxy_marshal(m_pPointer, ePointerFrame); }

    wl_proxy* m_pPointer;
    wl_proxy* m_pKeyboard;
    xkb_state* m_pState = nullptr;
    uint32_t m_uiNow = 0;
};

/// The protocol of KWin.
class CFakeDevices : public CDevices
{
public:
    explicit CFakeDevices(const sGlobals& globals) : m_pInput(globals.m_pFakeInput)
    {
        wl_proxy_marshal(m_pInput, eFakeAuthenticate, "inspector", "tests of the editors");
    }

    void Move(uint32_t x, uint32_t y) override
    {
        wl_proxy_marshal(m_pInput, eFakeMotionAbsolute, wl_fixed_from_int(static_cast<int>(x)),
                         wl_fixed_from_int(static_cast<int>(y)));
    }
    void Button(uint32_t code, uint32_t state) override
    {
        wl_proxy_marshal(m_pInput, eFakeButton, code, state);
    }
    void Key(uint32_t code, uint32_t state) override
    {
        wl_proxy_marshal(m_pInput, eFakeKey, code, state);
    }
    void Wheel(int notches) override
    {
        // Here a notch counts 10.
        wl_proxy_marshal(m_pInput, eFakeAxis, 0u, wl_fixed_from_int(notches * 10));
    }
    void Pan(int pixels) override
    {
        wl_proxy_marshal(m_pInput, eFakeAxis, 0u, wl_fixed_from_int(pixels));
    }

private:
    wl_proxy* m_pInput;
};

bool Obey(CDevices& devices, const std::string& line)
{
    std::istringstream words(line);
    std::string what;
    int first = 0;
    int second = 0;
    words >> what >> first >> second;
    if (what == "move")
        devices.Move(static_cast<uint32_t>(first), static_cast<uint32_t>(second));
    else if (what == "button")
        devices.Button(static_cast<uint32_t>(first), static_cast<uint32_t>(second));
    else if (what == "key")
        devices.Key(static_cast<uint32_t>(first), static_cast<uint32_t>(second));
    else if (what == "wheel")
        devices.Wheel(first);
    else if (what == "pan")
        devices.Pan(first);
    else
        return false;
    return true;
}

} // namespace

int main()
{
    wl_display* display = wl_display_connect(nullptr);
    if (!display)
    {
        std::cerr << "waylandinput: no compositor\n";
        return 1;
    }
    sGlobals globals;
    wl_registry* registry = wl_display_get_registry(display);
    const wl_registry_listener listener{OnGlobal, OnGlobalRemoved};
    wl_registry_add_listener(registry, &listener, &globals);
    wl_display_roundtrip(display);

    std::unique_ptr<CDevices> devices;
    if (globals.m_pFakeInput)
        devices = std::make_unique<CFakeDevices>(globals);
    else if (globals.m_pSeat && globals.m_pPointers && globals.m_pKeyboards)
        devices = std::make_unique<CVirtualDevices>(globals);
    if (!devices)
    {
        std::cerr << "waylandinput: the compositor takes no input from programs\n";
        return 1;
    }
    wl_display_roundtrip(display);
    std::cout << "ready" << std::endl;
    for (std::string line; std::getline(std::cin, line);)
    {
        const bool known = Obey(*devices, line);
        if (wl_display_roundtrip(display) < 0)
        {
            std::cerr << "waylandinput: the compositor hung up\n";
            return 1;
        }
        std::cout << (known ? "ok" : "what?") << std::endl;
    }
}
