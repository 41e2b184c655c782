# Without a design the banner stops after its option lines.
puts "status [report_hierarchy -noleaf]"
