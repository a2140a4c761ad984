// SPDX-FileCopyrightText: 2026 The Orvalis developers
// SPDX-License-Identifier: MIT
#pragma once

#include "controls/form.h"

#include <functional>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace orvalis {

/// What every window is to the others. Its roles (core/roles.h) say what else may be asked of it.
class WindowRole {
public:
    virtual ~WindowRole() = default;
    virtual Form& form() = 0;
};

/// The registry of windows: each role has at most one instance, which comes into being and loads at
/// the first reference to it and goes at its unload. main.cpp says who makes which.
class Windows {
public:
    Windows() = default;
    /// The end of the run: windows go without their unload handlers.
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    template <class Role>
    void registerMaker(std::function<std::unique_ptr<Role>()> maker) {
        m_makers[typeid(Role)] = [maker = std::move(maker)]() -> std::unique_ptr<WindowRole> {
            return maker();
        };
    }

    /// The instance of the role; the first reference makes it, stores it and runs its load handler,
    /// so a load handler that refers to its own window finds it.
    /// \throws RuntimeError 91 where no maker is known.
    template <class Role>
    Role& get() {
        return static_cast<Role&>(instance(typeid(Role)));
    }

    /// The instance if there is one, without making it.
    template <class Role>
    Role* loaded() const {
        return static_cast<Role*>(find(typeid(Role)));
    }

    /// Runs query-unload and unload and releases the instance; the next reference makes a new one.
    /// The old one is deleted when none of its handlers can be running any more.
    /// Does nothing where there is none.
    template <class Role>
    void unload() {
        unload(typeid(Role));
    }

    /// Whether a maker is known for the role: windows still to be written have none.
    template <class Role>
    bool knows() const {
        return m_makers.contains(typeid(Role));
    }

private:
    WindowRole& instance(std::type_index role);
    WindowRole* find(std::type_index role) const;
    void unload(std::type_index role);

    std::unordered_map<std::type_index, std::function<std::unique_ptr<WindowRole>()>> m_makers;
    std::unordered_map<std::type_index, std::unique_ptr<WindowRole>> m_instances;
    /// Holds windows that were unloaded while one of their own handlers may still be running.
    QObject m_unloaded;
};

} // namespace orvalis
