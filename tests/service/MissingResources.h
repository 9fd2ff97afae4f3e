#pragma once

namespace test
{

/// While it lives, the add-in's bundle is gone, with all request templates. The dark style sheet stays, and
/// the gate that replies pass, unless that is to be missing too.
class MissingResources
{
public:
    enum Gate { GateStays, GateMissing };

    explicit MissingResources(Gate gate);
    ~MissingResources();
    MissingResources(const MissingResources&) = delete;
    MissingResources& operator=(const MissingResources&) = delete;

private:
    Gate m_gate;
};

} // namespace test
