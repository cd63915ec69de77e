#pragma once

namespace penwright {

/// Sets a flag for as long as it lives; afterwards the flag is what it was before.
class Raised {
public:
    explicit Raised(bool &flag) : m_flag(flag), m_before(flag) { flag = true; }
    Raised(const Raised &) = delete;
    Raised &operator=(const Raised &) = delete;
    ~Raised() { m_flag = m_before; }

private:
    bool &m_flag;
    bool m_before;
};

}  // namespace penwright
