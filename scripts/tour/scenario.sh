# --- The sample scenario: its scenes, and where a parameter is used.
hand send 1923
hand find 'シナリオのロード' >/dev/null
choose 'シナリオのロード' 101 0
picture scenario_list
push 'シナリオのロード' 1
rout='シナリオ設定'
hand find "$rout" >/dev/null
picture scenario
push "$rout" 117
traced='確認するパラメータの指定'
hand find "$traced" >/dev/null
choose "$traced" 100 0
push "$traced" 101
hand find 'パラメータを確認' >/dev/null
picture scenario_trace
push 'パラメータを確認' 1
push "$traced" 2
push "$rout" 1
hand gone "$rout"
