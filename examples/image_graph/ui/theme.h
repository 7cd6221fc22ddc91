#pragma once

class QApplication;

/// Dark and neutral, so that the colours of the picture stand out.
void ApplyTheme(QApplication& application);
