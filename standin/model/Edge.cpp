#include "standin/model/Edge.h"

#include "standin/model/EntityMembers.h"

const MemberTable<Edge>& Edge::Members() const {
    static const MemberTable<Edge> members{EntityMembers::Select<Edge>()};
    return members;
}
