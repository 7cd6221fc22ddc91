#pragma once

#include "panel.h"

#include <memory>
#include <string>
#include <vector>

// A program is linked with one toolkit and the twins that are made with it.

/// Starts the toolkit and calls \p run with it; returns what that returns.
int RunWithToolkit(int argc, char** argv, int (*run)(int argc, char** argv));

struct sTwin
{
    std::string m_sName;
    std::unique_ptr<CPanel> (*m_pMake)();
};

const std::vector<sTwin>& AllTwins();
