// SPDX-License-Identifier: GPL-3.0-or-later
import QtQuick 2.15
import QtTest 1.15
import Tarnelo 1.0

// The history screen as a person reaches and uses it, on a phone-sized window
// with the device fixed in central Nairobi.
Item {
    id: window
    width: 390
    height: 844

    property var view

    // A week of hourly readings up to now, rising to "Poor" each afternoon.
    function week() {
        const now = Math.floor(Date.now() / 1000);
        const list = [];
        for (let hour = 168; hour >= 0; --hour) {
            const time = now - hour * 3600;
            const local = new Date(time * 1000).getHours();
            list.push({ main: { aqi: local >= 13 && local <= 17 ? 4 : local >= 8 && local <= 20 ? 2 : 1 }, dt: time });
        }
        return JSON.stringify({ list: list });
    }

    TestCase {
        name: "HistoryView"
        when: windowShown

        function init() {
            warnings.restart();
        }

        function cleanup() {
            window.view.destroy();
            wait(0);
            compare(warnings.count(), 0, "nothing printed a warning");
        }

        function test_dashboardLinkOpensThePastWeekOverIt() {
            historyService.answer(200, window.week());
            window.view = Qt.createComponent("qrc:/qml/HomeView.qml").createObject(window, { width: 390, height: 844 });
            const page = findChild(window.view, "page");
            mouseClick(findChild(window.view, "historyLink"));
            verify(String(page.source).endsWith("/HistoryView.qml"), String(page.source));
            tryCompare(page, "x", 0, 2000);
            tryCompare(page.item.model, "state", HistoryViewModel.Ready, 5000);
            tryVerify(() => findChild(page.item, "chartView") !== null, 2000);

            mouseClick(findChild(page.item, "backButton"));
            compare(String(page.source), "");
        }

        function test_tryAgainAsksOnceMore() {
            historyService.answer(401, '{"cod":401,"message":"Invalid API key."}');
            window.view = Qt.createComponent("qrc:/qml/HistoryView.qml").createObject(window, { width: 390, height: 772 });
            tryCompare(window.view.model, "state", HistoryViewModel.Failed, 5000);

            historyService.answer(200, window.week());
            mouseClick(findChild(window.view, "tryAgain"));
            tryCompare(window.view.model, "state", HistoryViewModel.Ready, 5000);
        }
    }
}
