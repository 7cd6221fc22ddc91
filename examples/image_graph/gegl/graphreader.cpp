#include "graphreader.h"

#include "geglsession.h"
#include "operationcatalog.h"
#include "paramtext.h"

#include <QXmlStreamReader>

#include <map>
#include <set>
#include <utility>

namespace
{

// Elements are nested as deep as branches are; each costs a turn of the stack.
constexpr int g_iMaxDepth = 1000;

/// An input that the picture of another node of the file leads to.
struct sClone
{
    int m_iTo;
    std::string m_sPad;
    QString m_sRef;
    qint64 m_llLine;
};

// Whether an attribute of an operation is a parameter of it.
bool IsValue(const QString& attribute)
{
    static const QStringList others{QStringLiteral("operation"), QStringLiteral("type"),
                                    QStringLiteral("id"),        QStringLiteral("ref"),
                                    QStringLiteral("name"),      QStringLiteral("opi")};
    return !others.contains(attribute);
}

class CReader
{
public:
    CReader(const std::string& folder, sGraphFile& file) : m_sFolder(folder), m_file(file) {}

    bool Read(const QByteArray& text);
    std::string GetError() const;

private:
    void ReadPart(const QByteArray& text);
    void ReadChildren(int owner);
    void ReadElement(int& to, std::string& pad);
    int ReadNode();
    void ReadPlace(int node, const QString& comment);
    const sOperationInfo* CheckOperation(const QString& name);
    void ReadParams(int node);
    void ReadCurve(sParamText& param);
    void Set(int node, const sParamText& param);
    void Remark(qint64 line, const QString& text);
    void Connect(int from, int to, const std::string& pad, qint64 line);
    void ConnectClones();
    void Fail(const QString& text);

    const std::string& m_sFolder;
    sGraphFile& m_file;
    QXmlStreamReader m_xml;
    QString m_sError;
    std::vector<QByteArray> m_vEnds;
    std::vector<sClone> m_vClones;
    std::map<QString, int> m_mapIds;
    std::set<int> m_setPlaced;
    int m_iNextId = 1;
    int m_iDepth = 0;
};

bool CReader::Read(const QByteArray& text)
{
    ReadPart(text);
    // The other ends are written as they would be in a file of their own.
    for (const QByteArray& end : std::exchange(m_vEnds, {}))
        if (m_sError.isEmpty())
            ReadPart("<gegl>" + end + "</gegl>");
    if (m_sError.isEmpty())
        ConnectClones();
    m_file.m_bAllPlaced = m_setPlaced.size() == m_file.m_graph.GetNodes().size();
    return m_sError.isEmpty();
}

std::string CReader::GetError() const
{
    return m_sError.toStdString();
}

void CReader::ReadPart(const QByteArray& text)
{
    m_xml.clear();
    m_xml.setNamespaceProcessing(false);
    m_xml.addData(text);
    if (m_xml.readNextStartElement())
    {
        const QString name = m_xml.name().toString();
        if (name != QLatin1String("gegl") && name != QLatin1String("image"))
            Fail(QStringLiteral("this is not a graph (it starts with <%1>, a graph starts with "
                                "<gegl>)")
                     .arg(name));
        else
            ReadChildren(0);
    }
    while (!m_xml.atEnd())
        m_xml.readNext();
    if (m_sError.isEmpty() && m_xml.hasError())
        m_sError = QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
}

void CReader::ReadChildren(int owner)
{
    // The first child leads to the second input of its owner, each of its siblings to the one
    // before it.
    int to = owner;
    std::string pad = "aux";
    for (m_xml.readNext(); !m_xml.isEndElement() && !m_xml.atEnd(); m_xml.readNext())
    {
        if (m_xml.isComment() && owner)
            ReadPlace(owner, m_xml.text().toString());
        else if (m_xml.isProcessingInstruction() && !owner &&
                 m_xml.processingInstructionTarget() == QLatin1String("image-graph-end"))
            m_vEnds.push_back(m_xml.processingInstructionData().toString().toUtf8());
        else if (m_xml.isStartElement() && owner && m_xml.name() == QLatin1String("params"))
            ReadParams(owner);
        else if (m_xml.isStartElement())
            ReadElement(to, pad);
    }
}

void CReader::ReadElement(int& to, std::string& pad)
{
    const qint64 line = m_xml.lineNumber();
    if (m_xml.name() == QLatin1String("clone"))
    {
        const QString ref = m_xml.attributes().value(QLatin1String("ref")).toString();
        m_vClones.push_back({std::exchange(to, 0), pad, ref, line});
        m_xml.skipCurrentElement();
        return;
    }
    const int node = ReadNode();
    if (to && node)
        Connect(node, to, pad, line);
    to = node;
    pad = "input";
}

int CReader::ReadNode()
{
    const QXmlStreamAttributes attributes = m_xml.attributes();
    QString name = m_xml.qualifiedName().toString();
    if (name == QLatin1String("node"))
        name = attributes.value(QLatin1String("operation")).toString();
    else if (name == QLatin1String("filter"))
        name = attributes.value(QLatin1String("type")).toString();
    const sOperationInfo* info = CheckOperation(name);
    if (!info)
        return 0;
    if (++m_iDepth > g_iMaxDepth)
    {
        Fail(QStringLiteral("operations are nested too deeply"));
        return 0;
    }
    sGraphNode node;
    node.m_iId = m_iNextId++;
    node.m_pOperation = CImageOperation::Create(info->m_sName);
    m_file.m_graph.Insert(node);
    m_mapIds[attributes.value(QLatin1String("id")).toString()] = node.m_iId;

    for (const QXmlStreamAttribute& attribute : attributes)
        if (IsValue(attribute.name().toString()))
        {
            sParamText param;
            param.m_sName = attribute.name().toString().toStdString();
            param.m_sText = attribute.value().toString().toStdString();
            Set(node.m_iId, param);
        }
    ReadChildren(node.m_iId);
    --m_iDepth;
    return node.m_iId;
}

const sOperationInfo* CReader::CheckOperation(const QString& name)
{
    const sOperationInfo* info = FindOperation(name.toStdString());
    const bool isNode = m_xml.name() == QLatin1String("node");
    if (!info && !isNode && !name.contains(QLatin1Char(':')))
        Fail(QStringLiteral("<%1> is not part of a graph").arg(name));
    else if (!info)
        Fail(QStringLiteral("the operation '%1' is not installed").arg(name));
    else if (info->m_bNeedsItsFile)
        Fail(QStringLiteral("the operation '%1' ends the program when its file is missing; use "
                            "gegl:load")
                 .arg(name));
    return m_sError.isEmpty() ? info : nullptr;
}

void CReader::ReadParams(int node)
{
    while (m_xml.readNextStartElement())
    {
        sParamText param;
        param.m_sName = m_xml.attributes().value(QLatin1String("name")).toString().toStdString();
        for (m_xml.readNext(); !m_xml.isEndElement() && !m_xml.atEnd(); m_xml.readNext())
        {
            if (m_xml.isCharacters())
                param.m_sText += m_xml.text().toString().toStdString();
            else if (m_xml.isStartElement())
                ReadCurve(param);
        }
        // An element without a text leaves the first value as it is.
        if (!param.m_sText.empty())
            Set(node, param);
    }
}

void CReader::ReadCurve(sParamText& param)
{
    const auto number = [this](const char* name)
    { return m_xml.attributes().value(QLatin1String(name)).toDouble(); };
    param.m_bIsCurve = true;
    param.m_bounds = {number("ymin"), number("ymax")};
    while (m_xml.readNextStartElement())
    {
        param.m_vPoints.push_back({number("x"), number("y")});
        m_xml.skipCurrentElement();
    }
}

void CReader::Set(int node, const sParamText& param)
{
    const std::string remark = SetParam(*m_file.m_graph.Find(node)->m_pOperation, param, m_sFolder);
    if (!remark.empty())
        Remark(m_xml.lineNumber(), QString::fromStdString(remark));
}

void CReader::ReadPlace(int node, const QString& comment)
{
    const QStringList words = comment.split(QLatin1Char(' '));
    if (words.size() < 3 || words[0] != QLatin1String("at"))
        return;
    bool isNumber[2]{};
    const QPointF position(words[1].toDouble(&isNumber[0]), words[2].toDouble(&isNumber[1]));
    if (!isNumber[0] || !isNumber[1])
        return;
    sGraphNode& placed = *m_file.m_graph.Edit(node);
    placed.m_position = position;
    placed.m_bPinned = words.value(3) == QLatin1String("pinned");
    m_setPlaced.insert(node);
}

void CReader::Connect(int from, int to, const std::string& pad, qint64 line)
{
    QString reason;
    if (m_file.m_graph.CanConnect(from, to, pad, reason))
        m_file.m_graph.Insert(sGraphEdge{from, to, pad});
    else
        Remark(line, reason);
}

void CReader::Remark(qint64 line, const QString& text)
{
    m_file.m_sRemark += QStringLiteral("line %1: %2\n").arg(line).arg(text).toStdString();
}

void CReader::ConnectClones()
{
    for (const sClone& clone : m_vClones)
    {
        const auto found = m_mapIds.find(clone.m_sRef);
        if (found == m_mapIds.end() || clone.m_sRef.isEmpty())
            m_sError = QStringLiteral("line %1: there is no operation with the id '%2'")
                           .arg(clone.m_llLine)
                           .arg(clone.m_sRef);
        else if (clone.m_iTo)
            Connect(found->second, clone.m_iTo, clone.m_sPad, clone.m_llLine);
    }
}

void CReader::Fail(const QString& text)
{
    if (m_sError.isEmpty())
        m_sError = QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(text);
    m_xml.raiseError();
}

} // namespace

bool ReadGraph(const std::string& text, const std::string& folder, sGraphFile& file,
               std::string& error)
{
    CGeglSession::TakeMessages();
    if (text.find_first_not_of(" \t\r\n") == std::string::npos)
    {
        error = "The file is empty.";
        return false;
    }
    sGraphFile read;
    CReader reader(folder, read);
    const bool good = reader.Read(QByteArray::fromStdString(text));
    for (const std::string& message : CGeglSession::TakeMessages())
        read.m_sRemark += message + '\n';
    if (good)
        file = std::move(read);
    else
        error = reader.GetError();
    return good;
}
