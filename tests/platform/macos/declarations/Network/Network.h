// SPDX-FileCopyrightText: 2026 Quillmark contributors
// SPDX-License-Identifier: MIT

#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>

typedef struct nw_path *nw_path_t;
typedef struct nw_path_monitor *nw_path_monitor_t;
typedef void (^nw_path_monitor_update_handler_t)(nw_path_t path);

typedef enum {
    nw_path_status_invalid = 0,
    nw_path_status_satisfied = 1,
    nw_path_status_unsatisfied = 2,
    nw_path_status_satisfiable = 3,
} nw_path_status_t;

typedef enum {
    nw_interface_type_other = 0,
    nw_interface_type_wifi = 1,
    nw_interface_type_cellular = 2,
    nw_interface_type_wired = 3,
    nw_interface_type_loopback = 4,
} nw_interface_type_t;

CF_EXTERN_C_BEGIN

void nw_release(void *object);
nw_path_monitor_t nw_path_monitor_create(void) API_AVAILABLE_MACOS(10.14);
void nw_path_monitor_set_queue(nw_path_monitor_t monitor, dispatch_queue_t queue) API_AVAILABLE_MACOS(10.14);
void nw_path_monitor_set_update_handler(nw_path_monitor_t monitor, nw_path_monitor_update_handler_t handler)
    API_AVAILABLE_MACOS(10.14);
void nw_path_monitor_start(nw_path_monitor_t monitor) API_AVAILABLE_MACOS(10.14);
void nw_path_monitor_cancel(nw_path_monitor_t monitor) API_AVAILABLE_MACOS(10.14);

nw_path_status_t nw_path_get_status(nw_path_t path) API_AVAILABLE_MACOS(10.14);
bool nw_path_is_expensive(nw_path_t path) API_AVAILABLE_MACOS(10.14);
bool nw_path_is_constrained(nw_path_t path) API_AVAILABLE_MACOS(10.15);
bool nw_path_has_ipv4(nw_path_t path) API_AVAILABLE_MACOS(10.14);
bool nw_path_has_ipv6(nw_path_t path) API_AVAILABLE_MACOS(10.14);
bool nw_path_has_dns(nw_path_t path) API_AVAILABLE_MACOS(10.14);
bool nw_path_uses_interface_type(nw_path_t path, nw_interface_type_t type) API_AVAILABLE_MACOS(10.14);

CF_EXTERN_C_END
