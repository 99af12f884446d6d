/* pxlcore: the companion of pxlimx. It owns the number of threads that parallel functions use. */
#ifndef PXLCORE_H
#define PXLCORE_H

#include <stdint.h>

#include "pxl_linkage.h"

/* Team size of every parallel region of pxlimx, read afresh at each call. Set at load to the OpenMP default team size, so
   OMP_NUM_THREADS and the processors that the process may run on count. Values below 1 act as 1. */
extern int32_t threads_omp_of_n_pxl;

/* Stores the team size for the calls to come; returns 0 (PXL_OK), or -6 (PXL_E_SIZE) and no change for n < 1. */
int32_t pxlcoreSetNumThreads(int32_t n);

/* The team size now in force. */
int32_t pxlcoreGetNumThreads(void);

/* A short English text for a status that pxlimx returned; never null, constant, in static memory.
   Positive numbers that are no warning code are told as such. */
const char* pxlcoreGetStatusText(int32_t status);

#include "pxl_linkage.h"

#endif
