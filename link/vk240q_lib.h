/* SPDX-License-Identifier: MIT
 *
 * The C interface of the instrument library vk240q_lib. All results and handles are 32-bit signed.
 * A handle is the 1-based device number (1 to 8); nothing is opened explicitly, the first transfer
 * opens. Transfer failures are numbers from -1012 to -1001.
 */
#ifndef VK240Q_LIB_H
#define VK240Q_LIB_H

#include <stdint.h>

/* Visible on both sides: the library exports it, and the program is built with hidden symbols. */
#define VK240Q_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* Recorders on the bus, one in upgrade mode included; less than 1 means none. */
VK240Q_API int32_t Vk240qCountDevices(void);
/* 1 while the library holds an open connection. */
VK240Q_API int32_t Vk240qStatus(void);
/* Closes everything; the next transfer reopens. */
VK240Q_API int32_t Vk240qClose(void);
/* Sends `length` bytes of a command text. 64 on success whatever the length. */
VK240Q_API int32_t Vk240qWriteA(int32_t handle, const char* text, int32_t length);
/* One ASCII reply into a buffer of 80 characters that the caller filled with blanks; not
 * NUL-terminated. At least 1 on success, else 0 or a negative error number. */
VK240Q_API int32_t Vk240qReadA(int32_t handle, char* buffer);
/* A binary block. WriteB: 64 on success. ReadB: at least 1 on success, else 0 or negative;
 * lengths of ReadB are multiples of 64. */
VK240Q_API int32_t Vk240qWriteB(int32_t handle, const void* bytes, int32_t length);
VK240Q_API int32_t Vk240qReadB(int32_t handle, void* bytes, int32_t length);
/* Seconds after which a read gives up, for all later reads. */
VK240Q_API int32_t Vk240qSetReadTimeout(int32_t seconds);

/* Exported by the library and not called by the program. */
VK240Q_API int32_t Vk240qResetPipe(int32_t handle);
VK240Q_API int32_t Vk240qResetDevice(int32_t handle);
VK240Q_API int32_t Vk240qGetReadTimeout(void);
VK240Q_API int32_t Vk240qGetWriteTimeout(void);
VK240Q_API int32_t Vk240qCloseDevice(int32_t handle);
VK240Q_API int32_t Vk240qStopControl(int32_t handle);
VK240Q_API int32_t Vk240qStopRead(int32_t handle);
VK240Q_API int32_t Vk240qStopWrite(int32_t handle);
VK240Q_API int32_t Vk240qGetDeviceDescriptor(int32_t handle, void* bytes, int32_t length);

#ifdef __cplusplus
}
#endif

#endif
