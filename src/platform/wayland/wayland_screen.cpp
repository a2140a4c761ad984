// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "platform/wayland/wayland_screen.h"

#include <wayland-client.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace orvalis {

namespace {

struct DisconnectDisplay {
    void operator()(wl_display* display) const { wl_display_disconnect(display); }
};

/// What the compositor tells of its first screen.
struct Output {
    wl_output* proxy = nullptr;
    QByteArray name;
    int width = 0;
    int height = 0;
    int scale = 1;
    bool turned = false; // stands on its side
};

Output& outputOf(void* data) {
    return *static_cast<Output*>(data);
}

constexpr uint32_t OutputVersionWithName = 4;

const wl_output_listener OutputListener{
    .geometry =
        [](void* data, wl_output*, int32_t, int32_t, int32_t, int32_t, int32_t, const char*,
           const char*, int32_t transform) {
            outputOf(data).turned = transform == WL_OUTPUT_TRANSFORM_90 ||
                                    transform == WL_OUTPUT_TRANSFORM_270 ||
                                    transform == WL_OUTPUT_TRANSFORM_FLIPPED_90 ||
                                    transform == WL_OUTPUT_TRANSFORM_FLIPPED_270;
        },
    .mode =
        [](void* data, wl_output*, uint32_t flags, int32_t width, int32_t height, int32_t) {
            if (flags & WL_OUTPUT_MODE_CURRENT) {
                outputOf(data).width = width;
                outputOf(data).height = height;
            }
        },
    .done = [](void*, wl_output*) {},
    .scale = [](void* data, wl_output*, int32_t scale) { outputOf(data).scale = scale; },
    .name = [](void* data, wl_output*, const char* name) { outputOf(data).name = name; },
    .description = [](void*, wl_output*, const char*) {},
};

const wl_registry_listener RegistryListener{
    .global =
        [](void* data, wl_registry* registry, uint32_t id, const char* interface,
           uint32_t version) {
            Output& output = outputOf(data);
            if (output.proxy || std::strcmp(interface, wl_output_interface.name) != 0)
                return;
            output.proxy = static_cast<wl_output*>(wl_registry_bind(
                registry, id, &wl_output_interface, std::min(version, OutputVersionWithName)));
            wl_output_add_listener(output.proxy, &OutputListener, data);
        },
    .global_remove = [](void*, wl_registry*, uint32_t) {},
};

} // namespace

std::optional<DisplayScreen> waylandScreen() {
    const std::unique_ptr<wl_display, DisconnectDisplay> display(wl_display_connect(nullptr));
    if (!display)
        return std::nullopt;
    Output output;
    wl_registry* registry = wl_display_get_registry(display.get());
    wl_registry_add_listener(registry, &RegistryListener, &output);
    // Once for the list of what there is, once for what the screen tells of itself.
    const bool answered =
        wl_display_roundtrip(display.get()) >= 0 && wl_display_roundtrip(display.get()) >= 0;
    if (output.proxy)
        wl_output_destroy(output.proxy);
    wl_registry_destroy(registry);
    if (!answered || output.width <= 0 || output.height <= 0 || output.scale <= 0)
        return std::nullopt;
    if (output.turned)
        std::swap(output.width, output.height);
    return DisplayScreen{output.name, QSizeF(output.width, output.height) / output.scale, 1};
}

} // namespace orvalis
