#pragma once

#include <set>
#include <string>

/// Counts the objects of a host: each must be destroyed once, and none be left.
class CLives
{
public:
    int Begin()
    {
        m_setAlive.insert(++m_iBorn);
        return m_iBorn;
    }

    void End(int life) { m_iDoubleDeaths += m_setAlive.erase(life) == 0; }

    bool IsAlive(int life) const { return m_setAlive.count(life) > 0; }
    int Born() const { return m_iBorn; }
    int Alive() const { return static_cast<int>(m_setAlive.size()); }
    int DoubleDeaths() const { return m_iDoubleDeaths; }

private:
    std::set<int> m_setAlive;
    int m_iBorn = 0;
    int m_iDoubleDeaths = 0;
};

/// The life of one object, as a member of it.
class CLife
{
public:
    explicit CLife(CLives& lives) : m_rLives(lives), m_iLife(lives.Begin()) {}
    ~CLife() { m_rLives.End(m_iLife); }
    CLife(const CLife&) = delete;
    CLife& operator=(const CLife&) = delete;

    int Id() const { return m_iLife; }

private:
    CLives& m_rLives;
    int m_iLife;
};
