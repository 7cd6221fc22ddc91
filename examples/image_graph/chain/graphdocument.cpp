#include "graphdocument.h"

#include "gegl/graphfile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <utility>

namespace
{

struct sPlace
{
    CGraphChain* m_pChain = nullptr;
    std::size_t m_ulIndex = 0;
};

sPlace Find(CGraphChain& chain, const sGraphItem* item)
{
    for (std::size_t i = 0; i < chain.size(); ++i)
    {
        if (chain[i].get() == item)
            return {&chain, i};
        const sPlace inside = Find(chain[i]->m_vBranch, item);
        if (inside.m_pChain)
            return inside;
    }
    return {};
}

sPlace Find(const CGraphChain& chain, const sGraphItem* item)
{
    return Find(const_cast<CGraphChain&>(chain), item);
}

std::unique_ptr<sGraphItem> MakeItem(const std::string& operation)
{
    auto item = std::make_unique<sGraphItem>();
    item->m_pOperation = CImageOperation::Create(operation);
    return item->m_pOperation ? std::move(item) : nullptr;
}

bool IsSource(const sGraphItem& item)
{
    return !item.m_pOperation->GetInfo().m_bHasInput;
}

std::string FolderOf(const QString& path)
{
    return QFileInfo(path).absolutePath().toStdString();
}

} // namespace

CGraphDocument::CGraphDocument(QObject* parent) : QObject(parent)
{
}

CGraphDocument::~CGraphDocument() = default;

bool CGraphDocument::Contains(const sGraphItem* item) const
{
    return item && Find(m_vChain, item).m_pChain;
}

sGraphItem* CGraphDocument::Add(const std::string& operation, sGraphItem* after)
{
    std::unique_ptr<sGraphItem> item = MakeItem(operation);
    if (!item)
        return nullptr;
    sGraphItem* added = item.get();
    sPlace place = Find(m_vChain, after);
    const bool isOpen = after && after->m_pOperation->GetInfo().m_bHasAux &&
                        after->m_vBranch.empty() && IsSource(*item);
    if (isOpen)
        place = {&after->m_vBranch, 0};
    else if (place.m_pChain)
        ++place.m_ulIndex;
    else
        place = {&m_vChain, m_vChain.size()};
    if (place.m_ulIndex > 0 && IsSource(*item))
    {
        std::unique_ptr<sGraphItem> composer = MakeItem("svg:src-over");
        composer->m_vBranch.push_back(std::move(item));
        item = std::move(composer);
    }
    const auto position =
        place.m_pChain->begin() + static_cast<CGraphChain::difference_type>(place.m_ulIndex);
    place.m_pChain->insert(position, std::move(item));
    MarkModified();
    Q_EMIT ChainChanged(added);
    Q_EMIT PictureChanged();
    return added;
}

void CGraphDocument::Remove(sGraphItem* item)
{
    const sPlace place = Find(m_vChain, item);
    if (!place.m_pChain)
        return;
    CGraphChain& chain = *place.m_pChain;
    const auto position =
        chain.begin() + static_cast<CGraphChain::difference_type>(place.m_ulIndex);
    // It lives until everybody has heard of it.
    const std::unique_ptr<sGraphItem> removed = std::move(*position);
    chain.erase(position);
    sGraphItem* next = nullptr;
    if (!chain.empty())
        next = chain[std::min(place.m_ulIndex, chain.size() - 1)].get();
    else if (!m_vChain.empty())
        next = m_vChain.back().get();
    MarkModified();
    Q_EMIT ChainChanged(next);
    Q_EMIT PictureChanged();
}

bool CGraphDocument::CanMove(const sGraphItem* item, int step) const
{
    const sPlace place = Find(m_vChain, item);
    if (!place.m_pChain)
        return false;
    const auto target = static_cast<long long>(place.m_ulIndex) + step;
    if (target < 0 || target >= static_cast<long long>(place.m_pChain->size()))
        return false;
    // Nothing can come before what makes the picture.
    const sGraphItem& other = *(*place.m_pChain)[static_cast<std::size_t>(target)];
    return step < 0 ? !IsSource(other) : !IsSource(*item);
}

void CGraphDocument::Move(sGraphItem* item, int step)
{
    if (!CanMove(item, step))
        return;
    const sPlace place = Find(m_vChain, item);
    const auto target = static_cast<std::size_t>(static_cast<long long>(place.m_ulIndex) + step);
    std::swap((*place.m_pChain)[place.m_ulIndex], (*place.m_pChain)[target]);
    MarkModified();
    Q_EMIT ChainChanged(item);
    Q_EMIT PictureChanged();
}

sWriteResult CGraphDocument::SetText(sGraphItem* item, const sImageProperty& property,
                                     const std::string& text)
{
    const std::string before = item->m_pOperation->GetText(property);
    const sWriteResult result = item->m_pOperation->SetText(property, text);
    if (item->m_pOperation->GetText(property) != before)
    {
        MarkModified();
        Q_EMIT PictureChanged();
    }
    return result;
}

sWriteResult CGraphDocument::SetComponent(sGraphItem* item, const sImageProperty& property,
                                          int component, const std::string& text)
{
    const CImageOperation::CColor before = item->m_pOperation->GetColor(property);
    const sWriteResult result = item->m_pOperation->SetComponent(property, component, text);
    if (item->m_pOperation->GetColor(property) != before)
    {
        MarkModified();
        Q_EMIT PictureChanged();
    }
    return result;
}

void CGraphDocument::SetColor(sGraphItem* item, const sImageProperty& property,
                              const CImageOperation::CColor& color)
{
    item->m_pOperation->SetColor(property, color);
    MarkModified();
    Q_EMIT ItemChanged(item);
    Q_EMIT PictureChanged();
}

void CGraphDocument::Reset(sGraphItem* item)
{
    item->m_pOperation->Reset();
    MarkModified();
    Q_EMIT ItemChanged(item);
    Q_EMIT PictureChanged();
}

void CGraphDocument::Clear()
{
    const CGraphChain old = std::exchange(m_vChain, {});
    m_sPath.clear();
    m_bModified = false;
    Q_EMIT ChainChanged(nullptr);
    Q_EMIT PictureChanged();
    Q_EMIT StateChanged();
}

bool CGraphDocument::Load(const QString& path, QString& message)
{
    QFile file(path);
    const QString name = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        message = tr("%1 cannot be opened: %2").arg(name, file.errorString());
        return false;
    }
    CGraphChain chain;
    std::string remark;
    const bool good = sGraphText::Read(file.readAll().toStdString(), FolderOf(path), chain, remark);
    if (!good)
    {
        message = tr("%1 is not a graph that can be opened: %2")
                      .arg(name, QString::fromStdString(remark));
        return false;
    }
    message = QString::fromStdString(remark);
    // The old items live until everybody has heard of the new ones.
    const CGraphChain old = std::exchange(m_vChain, std::move(chain));
    m_sPath = path;
    m_bModified = false;
    Q_EMIT ChainChanged(m_vChain.back().get());
    Q_EMIT PictureChanged();
    Q_EMIT StateChanged();
    return true;
}

bool CGraphDocument::Save(const QString& path, QString& message)
{
    QSaveFile file(path);
    const std::string text = sGraphText::Write(m_vChain, FolderOf(path));
    const bool good = file.open(QIODevice::WriteOnly) &&
                      file.write(text.c_str(), static_cast<qint64>(text.size())) ==
                          static_cast<qint64>(text.size()) &&
                      file.commit();
    if (!good)
    {
        message =
            tr("%1 cannot be written: %2").arg(QDir::toNativeSeparators(path), file.errorString());
        return false;
    }
    m_sPath = path;
    m_bModified = false;
    Q_EMIT StateChanged();
    return true;
}

void CGraphDocument::MarkModified()
{
    m_bModified = true;
    Q_EMIT StateChanged();
}
