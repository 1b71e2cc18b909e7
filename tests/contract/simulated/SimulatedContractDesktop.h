#pragma once

#include <map>

#include "contract/ContractDesktop.h"
#include "contract/simulated/SimulatedSessionVerbs.h"
#include "platform/simulated/SimulatedDesktop.h"

namespace quorvel::contract {

// The desktop in memory with its own ports; those of another platform may stand over it.
class SimulatedContractDesktop : public ContractDesktop {
public:
    SimulatedContractDesktop();
    ~SimulatedContractDesktop() override;

    ContractPorts ports() override;
    bool can(Capability capability) const override;
    bool turn() override;
    void settle() override;
    void connectScreens(const std::vector<ContractScreen>& screens) override;
    ContractWindow openWindow(const std::string& application, const std::string& title, const AxRect& frame) override;
    AxRect frameOf(const ContractWindow& window) override;
    void closeWindow(const ContractWindow& window) override;
    void endApplication(ProcessId process) override;
    void moveWindow(const ContractWindow& window, const AxRect& frame) override;
    void minimizeWindow(const ContractWindow& window) override;
    void focusWindow(const ContractWindow& window) override;
    bool isMinimized(const ContractWindow& window) override;
    bool isFocused(const ContractWindow& window) override;
    void holdKey(KeyCode keyCode, std::uint64_t flags) override;
    void repeatKey(KeyCode keyCode) override;
    void releaseKey(KeyCode keyCode) override;
    std::vector<KeyCode> keysReceivedBy(const ContractWindow& window) override;
    void holdHotKeyElsewhere(std::uint32_t keyCode, std::uint32_t modifiers) override;
    void clickMouse(AxPoint point) override;
    std::vector<AxRect> ownWindowsOnScreen() override;
    bool chooseFromStatusMenu(std::string_view title) override;
    void addResource(std::string_view name, std::string_view extension, std::string_view content) override;
    void addUnreadableResource(std::string_view name, std::string_view extension) override;
    UserDefaults& reopenedUserDefaults() override;
    std::vector<std::string> logged(const std::function<void()>& work) override;
    void deny(Permission permission) override;

protected:
    SimulatedDesktop desktop;

private:
    SimulatedWindow& find(const ContractWindow& window);

    SimulatedSessionVerbs session{desktop};
    std::map<std::string, SimulatedApplication*> applications;
    std::map<std::uint64_t, SimulatedWindow*> windows;
};

} // namespace quorvel::contract
