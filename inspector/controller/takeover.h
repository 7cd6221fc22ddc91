#pragma once

class CInspectorDataWidget;

/// Asked before the control of a row is deleted, while the toolkit holds on to some control; null
/// otherwise. Returns true when it takes the control over and deletes it later.
extern bool (*g_pfnTakeOver)(CInspectorDataWidget& widget);
