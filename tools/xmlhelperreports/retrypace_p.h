#ifndef XMLHELPERREPORTS_RETRYPACE_P_H
#define XMLHELPERREPORTS_RETRYPACE_P_H

#include <algorithm>

/// The pauses between tries, in milliseconds: each is twice the one before it.
class RetryPace
{
public:
    void SetPauses(int first, int longest)
    {
        m_first = std::max(first, 0);
        m_longest = std::max(longest, m_first);
        Restart();
    }

    /// The pauses begin again.
    void Restart() { m_next = m_first; }

    /// The next pause.
    int Next()
    {
        const int pause = m_next;
        m_next = m_next > m_longest / 2 ? m_longest : m_next * 2;
        return pause;
    }

private:
    int m_first = 1000;
    int m_longest = 60000;
    int m_next = 1000;
};

#endif
