/* pxlcore: the companion of pxlimx. It owns the number of threads that parallel functions use.
 *
 * fork: the OpenMP runtime's threads do not exist in a child that fork makes, and a team of several threads may wait for
 * them for ever. So the team size of a child is 1 from its first instruction on, and pxlcoreSetNumThreads takes nothing
 * else there; the parent keeps its own. Calls in the child give what they give on any team. A child that runs another
 * program (exec) starts anew. Do not write the variable in a child, and do not fork from inside a parallel region.
 */
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

/* The largest team. */
#define PXLCORE_MAX_THREADS 1024

/* Team size of every parallel region of pxlimx, read afresh at each call. Set at load to the OpenMP default team size, so
   OMP_NUM_THREADS and the processors that the process may run on count. Values outside 1..PXLCORE_MAX_THREADS act as the
   nearest of them, and no call asks for more threads than its region has rows. A process that the system refuses so many
   threads is ended by the OpenMP runtime. */
extern int32_t threads_omp_of_n_pxl;

#if defined(threads_omp_of_n_pxl) && defined(__GNUC__)
#pragma GCC diagnostic pop
#endif

/* Stores the team size for the calls to come and returns 0 (PXL_OK); or returns -5 (PXL_E_BAD_ARG) and changes nothing where n
   is outside 1..PXLCORE_MAX_THREADS, or is not 1 in a child that fork made. */
int32_t pxlcoreSetNumThreads(int32_t n);

/* The team size now in force. */
int32_t pxlcoreGetNumThreads(void);

/* A short English text for a status that pxlimx returned; never null, constant, in static memory.
   Positive numbers that are no warning code are told as such. */
const char* pxlcoreGetStatusText(int32_t status);

#include "pxl_linkage.h"

#endif
