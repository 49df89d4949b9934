// SPDX-License-Identifier: MIT
/// @file
/// The whole object face of ToviSDK: include this one.
#ifndef TOVISDK_TOVISDK_H
#define TOVISDK_TOVISDK_H

#include <tovisdk/tovi_traffic.h>

#include <tovisdk/device_type.h>
#include <tovisdk/outcome.h>
#include <tovisdk/records.h>
#include <tovisdk/socket_result.h>
#include <tovisdk/waiting.h>

#include <tovisdk/codec.h>
#include <tovisdk/files.h>
#include <tovisdk/log.h>
#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>
#include <tovisdk/text.h>
#include <tovisdk/version.h>

#endif
