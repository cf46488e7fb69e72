#pragma once

/// The angles of a pie segment. Legacy formats that have pies store no angles that
/// the importer reads; a host shows its own default segment.
class IPieItem
{
public:
    virtual ~IPieItem() = default;
};
