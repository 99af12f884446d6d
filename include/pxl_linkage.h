/* Included at the top and at the bottom of a public header: opens, then closes, C linkage for C++ programs.
   It stands apart so that the declarations themselves stay plain C that any parser can read. */
#ifdef __cplusplus
#ifndef PXL_LINKAGE_IS_OPEN
#define PXL_LINKAGE_IS_OPEN
extern "C" {
#else
#undef PXL_LINKAGE_IS_OPEN
}
#endif
#endif
