#pragma once

#include <wayland-client.h>

// The few requests of the input protocols that waylandinput sends, as tables of libwayland. No
// package of Debian 12 has all of their descriptions.

inline const wl_interface* g_anyTypes[6] = {};

inline const wl_message g_virtualPointerRequests[] = {
    {"motion", "uff", g_anyTypes},   {"motion_absolute", "uuuuu", g_anyTypes},
    {"button", "uuu", g_anyTypes},   {"axis", "uuf", g_anyTypes},
    {"frame", "", g_anyTypes},       {"axis_source", "u", g_anyTypes},
    {"axis_stop", "uu", g_anyTypes}, {"axis_discrete", "uufi", g_anyTypes},
    {"destroy", "", g_anyTypes},
};
enum eVirtualPointerRequest
{
    ePointerMotionAbsolute = 1,
    ePointerButton = 2,
    ePointerAxis = 3,
    ePointerFrame = 4,
    ePointerAxisSource = 5,
    ePointerAxisStop = 6,
    ePointerAxisDiscrete = 7,
};
inline const wl_interface g_virtualPointer = {"zwlr_virtual_pointer_v1", 1, 9,
                                              g_virtualPointerRequests,  0, nullptr};

inline const wl_interface* g_newPointerTypes[] = {&wl_seat_interface, &g_virtualPointer};
inline const wl_message g_virtualPointerManagerRequests[] = {
    {"create_virtual_pointer", "?on", g_newPointerTypes},
    {"destroy", "", g_anyTypes},
};
inline const wl_interface g_virtualPointerManager = {"zwlr_virtual_pointer_manager_v1", 1, 2,
                                                     g_virtualPointerManagerRequests,   0, nullptr};

inline const wl_message g_virtualKeyboardRequests[] = {
    {"keymap", "uhu", g_anyTypes},
    {"key", "uuu", g_anyTypes},
    {"modifiers", "uuuu", g_anyTypes},
    {"destroy", "", g_anyTypes},
};
enum eVirtualKeyboardRequest
{
    eKeyboardKeymap = 0,
    eKeyboardKey = 1,
    eKeyboardModifiers = 2,
};
inline const wl_interface g_virtualKeyboard = {"zwp_virtual_keyboard_v1", 1, 4,
                                               g_virtualKeyboardRequests, 0, nullptr};

inline const wl_interface* g_newKeyboardTypes[] = {&wl_seat_interface, &g_virtualKeyboard};
inline const wl_message g_virtualKeyboardManagerRequests[] = {
    {"create_virtual_keyboard", "on", g_newKeyboardTypes},
};
inline const wl_interface g_virtualKeyboardManager = {
    "zwp_virtual_keyboard_manager_v1", 1, 1, g_virtualKeyboardManagerRequests, 0, nullptr};

inline const wl_message g_fakeInputRequests[] = {
    {"authenticate", "ss", g_anyTypes},  {"pointer_motion", "ff", g_anyTypes},
    {"button", "uu", g_anyTypes},        {"axis", "uf", g_anyTypes},
    {"touch_down", "2uff", g_anyTypes},  {"touch_motion", "2uff", g_anyTypes},
    {"touch_up", "2u", g_anyTypes},      {"touch_cancel", "2", g_anyTypes},
    {"touch_frame", "2", g_anyTypes},    {"pointer_motion_absolute", "3ff", g_anyTypes},
    {"keyboard_key", "4uu", g_anyTypes},
};
enum eFakeInputRequest
{
    eFakeAuthenticate = 0,
    eFakeButton = 2,
    eFakeAxis = 3,
    eFakeMotionAbsolute = 9,
    eFakeKey = 10,
};
inline const wl_interface g_fakeInput = {"org_kde_kwin_fake_input", 4, 11,
                                         g_fakeInputRequests,       0, nullptr};
