// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#include "core/windows.h"

#include "runtime/at_rest.h"
#include "runtime/failure.h"

namespace orvalis {

Windows::~Windows() {
    // A window that goes may ask for others; it must find none of those already half destroyed.
    auto instances = std::move(m_instances);
    m_instances.clear();
}

WindowRole& Windows::instance(std::type_index role) {
    if (WindowRole* present = find(role))
        return *present;
    const auto maker = m_makers.find(role);
    if (maker == m_makers.end())
        throw RuntimeError(ErrorNumber::ObjectVariableNotSet);
    auto made = maker->second();
    WindowRole& window = *made;
    m_instances[role] = std::move(made);
    Form& form = window.form();
    QObject::connect(&form, &Form::unloadRequested, &m_unloaded, [this, role] { unload(role); });
    form.load();
    return window;
}

WindowRole* Windows::find(std::type_index role) const {
    const auto found = m_instances.find(role);
    return found == m_instances.end() ? nullptr : found->second.get();
}

void Windows::unload(std::type_index role) {
    WindowRole* window = find(role);
    // Within its own unload handler a window is still there, and a second request changes nothing.
    if (window == nullptr || !window->form().isLoaded())
        return;
    const auto release = [this, role] {
        const auto found = m_instances.find(role);
        std::shared_ptr<void> remains = std::move(found->second);
        m_instances.erase(found);
        deleteAtRest(std::move(remains), m_unloaded);
    };
    try {
        window->form().unload();
    } catch (...) {
        release();
        throw;
    }
    release();
}

} // namespace orvalis
