// The module's panels and pickers as this host uses them. Its files that show windows of their own include
// this and the system's header, its other one the module's: the two use the same names.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

// Positions are pixels of the system; windows of the system pass as void*.
class Panels {
public:
    using Taken = std::function<void(const std::string& panel, const std::string& gbk)>;

    // The panels stay above the host's window. What is confirmed comes to the function.
    Panels(void* owner, Taken taken);
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;
    ~Panels();

    // To be called before the first window is made.
    static void UsePerMonitorDpi();
    [[nodiscard]] static std::vector<std::string> Names();

    // Opens a panel on a text, below a field of the host's window; the panel that is open closes as by Esc.
    // False for an unknown name.
    bool Open(const std::string& name, const std::string& text, int left, int top, int right, int bottom);
    [[nodiscard]] bool IsOpen() const;
    // The windows of the open panel and of its control with an id; null for none.
    [[nodiscard]] void* Window() const;
    [[nodiscard]] void* Control(int id) const;

private:
    class Private;
    std::unique_ptr<Private> m_private;
};
