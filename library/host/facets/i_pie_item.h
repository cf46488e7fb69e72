#pragma once

/// The angles of a pie segment. Importers do not read angles: show a default segment.
class IPieItem
{
public:
    virtual ~IPieItem() = default;
};
