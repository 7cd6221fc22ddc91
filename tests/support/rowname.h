#pragma once

#include <gtest/gtest.h>

#include <string>

/// Names the cases of a table after the m_szName of their rows.
struct sRowName
{
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& row) const
    {
        return row.param.m_szName;
    }
};
