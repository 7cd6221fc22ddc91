#pragma once

#include "graphchain.h"

#include <QObject>
#include <QString>

/// The graph that is open: the only place where it is changed, so that everything that shows it
/// learns of every change.
class CGraphDocument : public QObject
{
    Q_OBJECT

public:
    explicit CGraphDocument(QObject* parent = nullptr);
    ~CGraphDocument() override;

    const CGraphChain& GetChain() const { return m_vChain; }
    const QString& GetPath() const { return m_sPath; }
    bool IsModified() const { return m_bModified; }
    /// False for an item that was removed; its address tells nothing else.
    bool Contains(const sGraphItem* item) const;

    /// Adds an operation after \p after, or at the end when it is null, and returns its item; null
    /// when there is no such operation. What makes a picture of its own is laid over what is there
    /// already: it becomes the branch of a composer that is added with it.
    sGraphItem* Add(const std::string& operation, sGraphItem* after);
    void Remove(sGraphItem* item);
    /// By one place: -1 towards the source, 1 towards the end of the item's chain.
    bool CanMove(const sGraphItem* item, int step) const;
    void Move(sGraphItem* item, int step);

    sWriteResult SetText(sGraphItem* item, const sImageProperty& property, const std::string& text);
    sWriteResult SetComponent(sGraphItem* item, const sImageProperty& property, int component,
                              const std::string& text);
    void SetColor(sGraphItem* item, const sImageProperty& property,
                  const CImageOperation::CColor& color);
    void Reset(sGraphItem* item);

    void Clear();
    /// Opens a file. On failure the open graph stays as it is and \p message says why; it may also
    /// hold a remark about a file that was opened.
    bool Load(const QString& path, QString& message);
    bool Save(const QString& path, QString& message);

Q_SIGNALS:
    /// Operations were added, removed or moved; \p current is the one to select, null for none.
    void ChainChanged(sGraphItem* current);
    /// Values of an operation were changed by something else than its rows in the panel.
    void ItemChanged(sGraphItem* item);
    /// The picture is no longer the one of the graph.
    void PictureChanged();
    /// The path or the modified flag changed.
    void StateChanged();

private:
    void MarkModified();

    CGraphChain m_vChain;
    QString m_sPath;
    bool m_bModified = false;
};
