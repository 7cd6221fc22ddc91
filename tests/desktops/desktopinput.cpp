#include "desktopinput.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QWidget>

#include <algorithm>
#include <map>
#include <stdexcept>
#include <vector>

namespace
{

/// The kernel's codes of the keys that the tests use.
int CodeOf(const std::string& key)
{
    static const std::map<std::string, int> codes{
        {"Escape", 1}, {"BackSpace", 14}, {"Tab", 15}, {"Return", 28}, {"ctrl", 29},
        {"shift", 42}, {"space", 57},     {"F5", 63},  {"Down", 108},  {"Delete", 111},
        {"Home", 102}, {"1", 2},          {"2", 3},    {"3", 4},       {"4", 5},
        {"5", 6},      {"6", 7},          {"7", 8},    {"8", 9},       {"9", 10},
        {"0", 11},     {"x", 45},         {"y", 21},   {"z", 44},      {"s", 31},
        {"a", 30}};
    return codes.at(key);
}

std::string NameOf(char character)
{
    return character == ' ' ? "space" : std::string(1, character);
}

} // namespace

CDesktopInput& CDesktopInput::Get()
{
    static CDesktopInput input;
    return input;
}

bool CDesktopInput::IsWayland()
{
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

std::string CDesktopInput::Desktop()
{
    return qgetenv("INSPECTOR_DESKTOP").toStdString();
}

CDesktopInput::CDesktopInput()
{
    if (!IsWayland())
        return;
    m_Wayland.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_Wayland.start(QString::fromLocal8Bit(qgetenv("INSPECTOR_WAYLAND_INPUT")), QStringList());
    if (!m_Wayland.waitForReadyRead() || m_Wayland.readLine() != "ready\n")
        throw std::runtime_error("there is no way to send input");
}

CDesktopInput::~CDesktopInput()
{
    m_Wayland.closeWriteChannel();
    m_Wayland.waitForFinished();
}

void CDesktopInput::Tell(const std::string& line)
{
    m_Wayland.write((line + "\n").c_str());
    if (!m_Wayland.waitForReadyRead() || m_Wayland.readLine() != "ok\n")
        throw std::runtime_error("not done: " + line);
}

void CDesktopInput::RunXdotool(const QStringList& arguments)
{
    if (QProcess::execute(QStringLiteral("xdotool"), arguments) != 0)
        throw std::runtime_error("xdotool failed");
}

void CDesktopInput::Move(const QWidget& window, const QPoint& position)
{
    if (IsWayland())
    {
        // A client does not learn where its window is; the tests see to it that it is at (0, 0).
        Tell("move " + std::to_string(position.x()) + " " + std::to_string(position.y()));
        return;
    }
    const QPoint global = window.mapToGlobal(position) * window.devicePixelRatioF();
    RunXdotool(
        {QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())});
}

void CDesktopInput::Press(int button)
{
    if (IsWayland())
    {
        // As the kernel counts them: left, right, middle.
        const std::string code = std::to_string(button == 1 ? 272 : 273);
        Tell("button " + code + " 1");
        Tell("button " + code + " 0");
        return;
    }
    RunXdotool({QStringLiteral("click"), QString::number(button)});
}

void CDesktopInput::Click(const QWidget& window, const QPoint& position)
{
    Move(window, position);
    Press(1);
}

void CDesktopInput::RightClick(const QWidget& window, const QPoint& position)
{
    Move(window, position);
    Press(3);
}

void CDesktopInput::Key(const std::string& key)
{
    if (!IsWayland())
    {
        RunXdotool({QStringLiteral("key"), QString::fromStdString(key)});
        return;
    }
    std::vector<int> codes;
    for (std::size_t begin = 0; begin <= key.size();)
    {
        const std::size_t end = std::min(key.find('+', begin), key.size());
        codes.push_back(CodeOf(key.substr(begin, end - begin)));
        begin = end + 1;
    }
    for (const int code : codes)
        Tell("key " + std::to_string(code) + " 1");
    std::reverse(codes.begin(), codes.end());
    for (const int code : codes)
        Tell("key " + std::to_string(code) + " 0");
}

void CDesktopInput::Type(const std::string& text)
{
    for (const char character : text)
        Key(NameOf(character));
}

void CDesktopInput::Wheel(const QWidget& window, const QPoint& position, int notches)
{
    Move(window, position);
    if (IsWayland())
        Tell("wheel " + std::to_string(notches));
    else
        RunXdotool({QStringLiteral("click"), QStringLiteral("--repeat"),
                    QString::number(std::abs(notches)), QString::number(notches > 0 ? 5 : 4)});
}

void CDesktopInput::Pan(const QWidget& window, const QPoint& position, int pixels)
{
    Move(window, position);
    Tell("pan " + std::to_string(pixels));
}
