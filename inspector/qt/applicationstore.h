#pragma once

#include <QCoreApplication>
#include <QGuiApplication>
#include <QObject>

#include <utility>

/// Something that the process keeps about its fonts: made when it is first asked for, emptied when
/// fonts come or go, and freed before the application frees its fonts.
template <typename TStore>
TStore& ApplicationStore()
{
    static TStore* store = nullptr;
    if (!store)
    {
        store = new TStore;
        qAddPostRoutine([] { delete std::exchange(store, nullptr); });
        const auto empty = []
        {
            if (store)
                store->Empty();
        };
        QObject::connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, qGuiApp, empty);
    }
    return *store;
}
