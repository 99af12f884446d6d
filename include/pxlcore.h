/* pxlcore: the companion of pxlimx. It owns the number of threads that parallel functions use. */
#ifndef PXLCORE_H
#define PXLCORE_H

#include <stdint.h>

#include "pxl_linkage.h"

/* A variable of a DLL is reached through a pointer in the import library: then the declaration below declares that pointer. */
#if defined(_WIN32) && !defined(PXLCORE_BUILD)
#define threads_omp_of_n_pxl (*__imp_threads_omp_of_n_pxl)
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wparentheses"
#endif
#endif

/* Team size of every parallel region of pxlimx, read afresh at each call. Set at load to the OpenMP default team size, so
   OMP_NUM_THREADS and the processors that the process may run on count. Values below 1 act as 1. */
extern int32_t threads_omp_of_n_pxl;

#if defined(threads_omp_of_n_pxl) && defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

/* Stores the team size for the calls to come; returns 0 (PXL_OK), or -6 (PXL_E_SIZE) and no change for n < 1. */
int32_t pxlcoreSetNumThreads(int32_t n);

/* The team size now in force. */
int32_t pxlcoreGetNumThreads(void);

/* A short English text for a status that pxlimx returned; never null, constant, in static memory.
   Positive numbers that are no warning code are told as such. */
const char* pxlcoreGetStatusText(int32_t status);

#include "pxl_linkage.h"

#endif
