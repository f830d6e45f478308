#pragma once

/// Namespace and version macros. All other headers include this one, directly or indirectly.

namespace osg {
}

#define OSG osg

#define OSG_BEGIN_NAMESPACE namespace osg {
#define OSG_END_NAMESPACE }
#define OSG_USING_NAMESPACE using namespace osg;

#define OSG_VERSION 0x010800
#define OSG_MAJOR_VERSION 1
#define OSG_MINOR_VERSION 8
#define OSG_RELEASE_VERSION 0

#define OSG_NUM_ASPECTS 2

// Client classes use these macros. They are empty, because the default visibility exports
// everything.
#define OSG_BASE_DLLMAPPING
#define OSG_SYSTEMLIB_DLLMAPPING
#define OSG_BASE_DLLTMPLMAPPING
#define OSG_SYSTEMLIB_DLLTMPLMAPPING
